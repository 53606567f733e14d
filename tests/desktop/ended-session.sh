#!/usr/bin/env bash
# The program is told to end while a person types (SIGTERM, SIGHUP, SIGINT), or its display goes away: what
# was typed just before is kept within a second, and offered at the next start.
#
# Usage: ended-session.sh ZANTH-MANAGER DATA-DIRECTORY
set -euo pipefail
program=$1 data=$2

. "$(dirname "$0")/display.sh"

fail() { echo "$*" >&2; cat "$work/errors" >&2; exit 1; }
wait_for() { for _ in $(seq 100); do "$@" && return; sleep 0.1; done; return 1; }
kept() { grep -qrs "$1" "$work/state/ZanthMan/recovery"; }
gone() { ! kill -0 "$pid" 2>/dev/null; }
type_into_window() {
  "$program" --light --size 1000x760 --host-dir "$data" 2>"$work/errors" &
  pid=$!
  find_window
  xdotool mousemove 500 500 click 1
  sleep 0.3
  xdotool type --delay 10 "$1"
  wait_for eval '[[ $(shows) == *"*"* ]]' || fail "the window does not show the change: $(shows)"
}
# SIGNAL-OR-DISPLAY TEXT
end_by() {
  local since=$EPOCHREALTIME
  type_into_window "$2"
  since=$EPOCHREALTIME
  if [ "$1" = display ]; then kill -KILL "$server"; else kill -"$1" "$pid"; fi
  wait_for gone || fail "$1 does not end the program"
  awk -v a="$since" -v b="$EPOCHREALTIME" 'BEGIN { exit !(b - a < 3) }' || fail "$1 takes too long"
  kept "$2" || fail "$1: the text typed just before is not kept"
}

end_by TERM 'typed before TERM'
end_by HUP 'typed before HUP'
end_by INT 'typed before INT'
end_by display 'typed before the display went'
