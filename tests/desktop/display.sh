# A display and a home of the test's own, gone with it. Source it: . display.sh FIRST
# FIRST is the number of the first display to try: tests that run at the same time name others, 20 apart.

work=$(mktemp -d)
cleanup() {
  kill $(jobs -p) 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

display=
for try in $(seq "$1" $(($1 + 19))); do
  [ -e "/tmp/.X11-unix/X$try" ] || { display=:$try; break; }
done
Xvfb "$display" -screen 0 1100x820x24 -nolisten tcp >/dev/null 2>&1 &
export DISPLAY=$display QT_QPA_PLATFORM=xcb HOME=$work XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state
export XDG_RUNTIME_DIR=$work ZANTHMAN_STORE=$work/settings.db QT_SCALE_FACTOR=1 QT_FONT_DPI=96
for _ in $(seq 50); do xdotool getdisplaygeometry >/dev/null 2>&1 && break; sleep 0.1; done

# Waits for the program's window and puts it into the corner.
find_window() {
  window=$(timeout 20 xdotool search --sync --onlyvisible --name 'Zanth Manager' | head -n 1)
  xdotool windowmove --sync "$window" 0 0
  xdotool windowfocus --sync "$window"
}
shows() { xdotool getwindowname "$window"; }
