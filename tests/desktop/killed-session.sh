#!/usr/bin/env bash
# The plug is pulled while a person types: the program is killed on a real X display, two seconds after the
# last key. The next start offers the text; recovered and saved, the file holds every letter of it, and the
# bytes that the save replaced are among the backups.
#
# Usage: killed-session.sh ZANTH-MANAGER DATA-DIRECTORY
set -euo pipefail
program=$1 data=$2

. "$(dirname "$0")/display.sh"

file=$work/User.con
cp "$data/zmuserp.dat" "$file"
fail() { echo "$*" >&2; cat "$work/errors" >&2; exit 1; }
wait_for() { for _ in $(seq 100); do "$@" && return; sleep 0.1; done; return 1; }
kept() { grep -qrs 'every letter of it' "$work/state/ZanthMan/recovery"; }
gone() { ! kill -0 "$pid" 2>/dev/null; }

open_window "$file"
wait_for eval '[[ $(shows) == user.con* || $(shows) == User.con* ]]' || fail "the file is not open: $(shows)"
xdotool mousemove 500 500 click 1
sleep 0.3
xdotool key ctrl+Home
xdotool type --delay 20 '// every letter of it '
wait_for modified || fail "the window does not show the change: $(shows)"
sleep 2
wait_for kept || fail "nothing was kept"
kill -9 "$pid"
wait "$pid" 2>/dev/null || true
cmp -s "$file" "$data/zmuserp.dat" || fail "the file on disk has changed"

open_window
xdotool key alt+r                                  # Recover
wait_for modified || fail "the text has not been recovered: $(shows)"
xdotool mousemove 500 500 click 3                  # the editor's menu
sleep 0.3
xdotool key f
sleep 0.3
xdotool key s
wait_for saved || fail "the file has not been saved: $(shows)"
{ printf '// every letter of it '; cat "$data/zmuserp.dat"; } | cmp - "$file" || fail "the file is not what was typed"
grep -qrs 'MAXPLAYERHEALTH' "$work/state/ZanthMan/backups" || fail "the replaced bytes are not kept"
xdotool key ctrl+q
wait_for gone || fail "the program does not end"
! kept || fail "saved text is still kept for recovery"
