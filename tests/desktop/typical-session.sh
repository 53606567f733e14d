#!/usr/bin/env bash
# A person's typical session with mouse and keyboard alone, on a real X display: opens a user file through
# the dialog, picks an item, types another value, saves from the editor's menu. The file on disk must
# differ in exactly that value.
#
# Usage: typical-session.sh ZANTH-MANAGER DATA-DIRECTORY [PICTURE]
set -euo pipefail
program=$1 data=$2 picture=${3-}

. "$(dirname "$0")/display.sh"

cp "$data/zmuserp.dat" "$work/User.con"
"$program" --light --size 1000x760 --host-dir "$data" 2>"$work/errors" &
find_window

# Waits until a window with that title is there, or is gone.
await() { timeout 15 xdotool search --sync --onlyvisible --name "$1" >/dev/null; }
click() { xdotool mousemove "$1" "$2" click "${3-1}"; sleep 0.3; }

# Where things are in the window, at 96 dots per inch: the toolbar, and the settings panel below it.
click 59 "$((toolbar_y = ${TOOLBAR_Y:-34}))"
await 'Open'
dialog=$(xdotool search --onlyvisible --name '^Open' | tail -n 1)
xdotool windowfocus --sync "$dialog"
xdotool type --delay 5 "$work/User.con"
xdotool key Return
for _ in $(seq 50); do [[ $(shows) == user.con* ]] && break; sleep 0.1; done
[[ $(shows) == user.con* ]] || { echo "the file has not been opened: $(shows)" >&2; exit 1; }
xdotool windowfocus --sync "$window"

click 70 "$((toolbar_y + 60))"                     # Max Regular Health
click 320 "$((toolbar_y + 63))"                    # its value box
xdotool key ctrl+a
xdotool type --delay 20 175
sleep 0.5
[[ $(shows) == 'user.con*'* ]] || { echo "the window does not show the change: $(shows)" >&2; exit 1; }

click 500 "$((toolbar_y + 400))" 3                 # the editor's menu
xdotool key f
sleep 0.3
xdotool key s
for _ in $(seq 50); do [[ $(shows) != *'*'* ]] && break; sleep 0.1; done
[ -z "$picture" ] || import -window root "$picture"

changed=$(diff --text "$data/zmuserp.dat" "$work/User.con" | tr -d '\r' || true)
lines=$(grep -c '^[<>]' <<<"$changed" || true)
if [ "$lines" != 2 ] || ! grep -qE '^> define MAXPLAYERHEALTH +175 ' <<<"$changed"; then
  echo "the file on disk is not what was typed:" >&2
  echo "$changed" >&2
  cat "$work/errors" >&2
  exit 1
fi
echo "$changed"
