#!/usr/bin/env bash
# What a screen reader is told of the window, on a real display with a bus and a registry of the test's own.
#
# Usage: screen-reader.sh TEST-PROGRAM ZANTH-MANAGER DATA-DIRECTORY
set -euo pipefail
reader=$1 program=$2 data=$3

launcher=/usr/libexec/at-spi-bus-launcher
[ -x "$launcher" ] || { echo "SKIPPED: at-spi2-core is not installed ($launcher is missing)"; exit 77; }

. "$(dirname "$0")/display.sh"
chmod 700 "$work"

dbus-daemon --session --nofork --nopidfile --print-address=3 3>"$work/address" 2>"$work/bus-errors" &
for _ in $(seq 100); do [ -s "$work/address" ] && break; sleep 0.1; done
[ -s "$work/address" ] || { echo "there is no bus: $(cat "$work/bus-errors")" >&2; exit 1; }
DBUS_SESSION_BUS_ADDRESS=$(<"$work/address")
export DBUS_SESSION_BUS_ADDRESS QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1

# window LANGUAGE FILTER: the tests of the reader at a window in that language
window() {
  printf 'define MAXPLAYERHEALTH 100 // health\r\nsecond line\r\n' >"$work/User.con"
  rm -rf "$work/settings.db" "$work/state"  # no place that another window was left at
  LANGUAGE=$1 open_window "$work/User.con"
  "$reader" --gtest_filter="$2"
  kill "$pid"
  wait "$pid" 2>/dev/null || true
}

window en 'ScreenReader.*'
window de 'GermanScreenReader.*'
