#!/usr/bin/env bash
# Another program's text of 128 MiB is pasted into the window on a real display, and saved.
#
# Usage: large-clipboard.sh ZANTH-MANAGER DATA-DIRECTORY CLIPBOARD-OWNERS
set -euo pipefail
program=$1 data=$2 owners=$3

. "$(dirname "$0")/display.sh"

{ yes $'define SOMETHING 100 // as it was\r' || true; } | head -c $((128 << 20)) >"$work/large"
"$owners" --give "$work/large" >"$work/owned" &
for _ in $(seq 100); do [ -s "$work/owned" ] && break; sleep 0.1; done

: >"$work/user.con"
open_window "$work/user.con"
await() { for _ in $(seq 1200); do "$@" && return; sleep 0.1; done; echo "waited in vain: $*" >&2; exit 1; }
await eval '[[ $(shows) == user.con* ]]'
start=$(date +%s%N)
xdotool key ctrl+v
await modified
echo "pasted after $((($(date +%s%N) - start) / 1000000)) ms"
xdotool key ctrl+s
await saved
cmp "$work/large" "$work/user.con"
