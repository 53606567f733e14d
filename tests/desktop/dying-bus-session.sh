#!/usr/bin/env bash
# The session bus dies while other programs may use the window: it goes on, and what is typed before and
# afterwards is saved, and kept when the program ends without a save.
#
# Usage: dying-bus-session.sh ZANTH-MANAGER DATA-DIRECTORY
set -euo pipefail
program=$1 data=$2

. "$(dirname "$0")/display.sh"

fail() { echo "$*" >&2; cat "$work/errors" >&2; exit 1; }
wait_for() { for _ in $(seq 100); do "$@" && return; sleep 0.1; done; return 1; }

dbus-daemon --session --nofork --nopidfile --print-address=3 3>"$work/address" 2>/dev/null &
bus=$!
wait_for test -s "$work/address" || fail "there is no bus"
DBUS_SESSION_BUS_ADDRESS=$(<"$work/address")
export DBUS_SESSION_BUS_ADDRESS
offered() {
  gdbus call --session --dest org.zanthman.ZanthManager --object-path /Tessel/ucTessel/1 \
    --method Tessel.ucTessel.SetTesselVersion a >/dev/null 2>&1
}

printf 'define A 1\r\n' >"$work/User.con"
open_window --automation "$work/User.con"
wait_for offered || fail "the control is not offered"
xdotool mousemove 500 500 click 1
sleep 0.3
xdotool type --delay 10 'before'
wait_for modified || fail "the window does not show the change: $(shows)"

kill -9 "$bus"
wait "$bus" 2>/dev/null || true
sleep 0.5
kill -0 "$pid" || fail "the program ended with its bus"
xdotool type --delay 10 ' after'
xdotool mousemove 500 500 click 3  # the editor's menu
sleep 0.3
xdotool key f
sleep 0.3
xdotool key s
wait_for saved || fail "nothing was saved: $(shows)"
grep -q 'before after' "$work/User.con" || fail "the file has not what was typed: $(<"$work/User.con")"

xdotool type --delay 10 ' unsaved'
wait_for modified || fail "the window does not show the second change: $(shows)"
kill "$pid"
wait "$pid" 2>/dev/null || true
grep -rq 'before after unsaved' "$XDG_STATE_HOME/ZanthMan/recovery" || fail "the last text was not kept"
