#!/usr/bin/env bash
# Problems, by keyboard alone under a window manager: a doubled line is found, listed and taken out, and
# comes back by one step of undo. What is on disk in the end is what these keys make of the file.
#
# Usage: problems-session.sh ZANTH-MANAGER DATA-DIRECTORY
set -euo pipefail
program=$1 data=$2

. "$(dirname "$0")/managed-display.sh"

cp "$data/zmuserp.dat" "$work/good"
{ cat "$work/good"; grep -a 'define MAXPLAYERHEALTH' "$work/good"; } >"$work/doubled"
cp "$work/doubled" "$work/User.con"
# The list has the problem a moment after the window.
fixed() { key Home alt+x; titled 'user.con\* *'; }

start "$work/User.con"
demand "the file is not open" titled 'user.con *'
key F5
demand "nothing was fixed" fixed
key ctrl+s
demand "the file is not saved" titled 'user.con *'
holds "$work/User.con" "$work/good" || fail "the doubled line is still there"
key Escape ctrl+z
demand "nothing was taken back" titled 'user.con\* *'
key ctrl+s
demand "the file is not saved again" titled 'user.con *'
holds "$work/User.con" "$work/doubled" || fail "the fix was more than one step"
key ctrl+q
demand "the program does not end" gone
