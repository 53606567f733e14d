#!/usr/bin/env bash
# On a desktop without a session bus the program starts none, whatever the toolkit would like to ask of one.
#
# Usage: busless-session.sh ZANTH-MANAGER DATA-DIRECTORY
set -euo pipefail
program=$1 data=$2

. "$(dirname "$0")/display.sh"

mkdir "$work/bin"
printf '#!/bin/sh\ntouch "%s/launched"\nexit 1\n' "$work" >"$work/bin/dbus-launch"
chmod +x "$work/bin/dbus-launch"
export PATH=$work/bin:$PATH

# session ADDRESS OPTION...
session() {
  if [ -n "$1" ]; then export DBUS_SESSION_BUS_ADDRESS=$1; else unset DBUS_SESSION_BUS_ADDRESS; fi
  shift
  "$program" --host-dir "$data" "$@" 2>"$work/errors" &
  find_window
  sleep 1
  kill %%
  wait %% 2>/dev/null || true
  [ ! -e "$work/launched" ] || { echo "a bus was started, with the options \"$*\"" >&2; exit 1; }
}

session ''
session '' --automation
session autolaunch:
touch "$work/bus"  # a file is no bus
session ''
