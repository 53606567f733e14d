# A display and a home of the test's own, gone with it. Source it: . display.sh

work=$(mktemp -d)
cleanup() {
  local status=$?
  kill $(jobs -p) 2>/dev/null || true
  wait 2>/dev/null || true
  # What a build with the sanitizers reports, leaks at the very end too.
  cat "$work"/sanitizer.* >&2 2>/dev/null && status=1
  rm -rf "$work"
  exit "$status"
}
trap cleanup EXIT

# The server takes a number that is free, and writes it down once it can be used. It does not start anew
# when the last program leaves: the next one might come too early.
Xvfb -displayfd 1 -noreset -screen 0 1100x820x24 -nolisten tcp >"$work/display" 2>"$work/display-errors" &
server=$!
for _ in $(seq 600); do [ -s "$work/display" ] && break; sleep 0.05; done
[ -s "$work/display" ] || { echo "there is no display: $(cat "$work/display-errors")" >&2; exit 1; }
display=:$(cat "$work/display")
export DISPLAY=$display QT_QPA_PLATFORM=xcb HOME=$work XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state
export LANGUAGE=en
export ASAN_OPTIONS=log_path=$work/sanitizer UBSAN_OPTIONS=log_path=$work/sanitizer
export XDG_RUNTIME_DIR=$work ZANTHMAN_STORE=$work/settings.db QT_SCALE_FACTOR=1 QT_FONT_DPI=96

# Waits for the program's window and puts it into the corner.
find_window() {
  window=$(timeout 20 xdotool search --sync --onlyvisible --name 'Zanth Manager' | head -n 1)
  xdotool windowmove --sync "$window" 0 0
  xdotool windowfocus --sync "$window"
}
shows() { xdotool getwindowname "$window"; }

# For sessions that set $program and $data: the window with these arguments, and what its title says.
open_window() {
  "$program" --light --size 1000x760 --host-dir "$data" "$@" 2>"$work/errors" &
  pid=$!
  find_window
}
modified() { [[ $(shows) == *'*'* ]]; }
saved() { ! modified; }
