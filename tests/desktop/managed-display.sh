# A display of display.sh with a window manager, and what the sessions of a whole day have in common. They
# wait for what has to come, and never for a time. Source it: . managed-display.sh

. "$(dirname "${BASH_SOURCE[0]}")/display.sh"

fail() { echo "$*" >&2; echo "the window says: $(shows)" >&2; cat "$work/errors" >&2; exit 1; }
# wait_for COMMAND...: for up to 20 seconds, until it is true.
wait_for() { for _ in $(seq 400); do "$@" 2>/dev/null && return; sleep 0.05; done; return 1; }
# demand WHAT COMMAND...
demand() { local what=$1; shift; wait_for "$@" || fail "$what"; }

managed() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q '#'; }
openbox --config-file /dev/null >"$work/openbox" 2>&1 &
wait_for managed || { echo "there is no window manager" >&2; exit 1; }

active() { xdotool getactivewindow getwindowname; }
# The window that has the keys is of that title, by a pattern of the shell.
in_front() { [[ $(active) == $1 ]]; }
main_in_front() { [ "$(xdotool getactivewindow)" = "$window" ]; }
titled() { [[ $(shows) == $1 ]]; }
gone() { ! kill -0 "$pid"; }
key() { xdotool key --delay 15 "$@"; }
type() { xdotool type --delay 10 "$1"; }
holds() { cmp -s "$1" "$2"; }

# start OPTION...: the program's window in the corner, with the keys.
start() {
  "$program" --light --size 1000x760 --host-dir "$data" "$@" 2>"$work/errors" &
  pid=$!
  window=$(timeout 20 xdotool search --sync --onlyvisible --name 'Zanth Manager' | head -n 1)
  demand "the window does not come to the front" main_in_front
  xdotool windowmove "$window" 0 0
  demand "the window does not move" in_the_corner
}
in_the_corner() {
  local X Y
  eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^[XY]=')"
  [ "$X" -lt 10 ] && [ "$Y" -lt 40 ]
}
# open_by_key PATH PATTERN: by the dialog of Ctrl+O, until the title is PATTERN.
open_by_key() {
  key ctrl+o
  demand "no dialog to open a file" in_front 'Open*'
  type "$1"
  key Return
  demand "$1 is not open" titled "$2"
  demand "the dialog stays" main_in_front
}
