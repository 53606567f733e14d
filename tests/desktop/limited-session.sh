#!/usr/bin/env bash
# A limit on the size of files, as a shell may set it: the program neither ends nor tears anything when its own
# writing meets the limit. It says so, and a save that has room goes through.
#
# Usage: limited-session.sh ZANTH-MANAGER DATA-DIRECTORY
set -euo pipefail
program=$1 data=$2

. "$(dirname "$0")/display.sh"

file=$work/User.con before=$work/before
for _ in $(seq 10); do cat "$data/zmuserp.dat"; done >"$before"
cp "$before" "$file"
fail() { echo "$*" >&2; cat "$work/errors" >&2; exit 1; }
wait_for() { for _ in $(seq 100); do "$@" && return; sleep 0.1; done; return 1; }

# Room for the settings, not for the text.
(ulimit -f 100; exec "$program" --light --size 1000x760 --host-dir "$data" "$file" 2>"$work/errors") &
pid=$!
find_window
wait_for eval '[[ $(shows) == user.con* || $(shows) == User.con* ]]' || fail "the file is not open: $(shows)"
xdotool mousemove 500 500 click 1
sleep 0.3
xdotool type --delay 10 'typed under a limit'
wait_for eval '[[ $(shows) == *"*"* ]]' || fail "the window does not show the change: $(shows)"
sleep 2.5                                          # it has tried to keep the text
kill -0 "$pid" || fail "the program ended"
cmp -s "$file" "$before" || fail "the file on disk has changed"
xdotool mousemove 500 500 click 3                  # the editor's menu
sleep 0.3
xdotool key f
sleep 0.3
xdotool key s
sleep 1
kill -0 "$pid" || fail "the program ended while it saved"
cmp -s "$file" "$before" || fail "a save without room has changed the file"
xdotool search --onlyvisible --name '^Zanth Manager$' >/dev/null || fail "nobody was told"
[ -z "$(find "$work" -name '.tessel-*')" ] || fail "something was left behind"
