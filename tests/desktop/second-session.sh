#!/usr/bin/env bash
# The second view, under a window manager: it shows one document while another one is written to, a click into it
# selects its tab, nothing can be typed into it, and what is copied there is pasted into the text. What is on disk
# in the end must be what that makes of the files, byte for byte.
#
# Usage: second-session.sh ZANTH-MANAGER DATA-DIRECTORY
set -euo pipefail
program=$1 data=$2

. "$(dirname "$0")/managed-display.sh"

cp "$data/zmgamep.dat" "$work/Game.con"
cp "$data/zmuserp.dat" "$work/User.con"
{ printf 'first '; cat "$data/zmgamep.dat"; } >"$work/game.wanted"
{ head -n 1 "$data/zmuserp.dat" | tr -d '\r\n'; cat "$data/zmuserp.dat"; } >"$work/user.wanted"

start "$work/Game.con" "$work/User.con"
demand "the files are not open" titled 'user.con *'

key F7 ctrl+Tab
demand "the first view does not go to the other document" titled 'game.con *'
key ctrl+Home
type 'first '
demand "nothing is typed into the first view" titled 'game.con\* *'
key ctrl+s
demand "the document in the first view is not saved" titled 'game.con *'

xdotool mousemove --sync --window "$window" 800 500 click 1
demand "a click into the second view does not select its tab" titled 'user.con *'
key x Delete Return
key ctrl+Home shift+End ctrl+c Escape ctrl+Home ctrl+v
demand "what is copied in the second view is not pasted" titled 'user.con\* *'
key ctrl+s
demand "it is not saved" titled 'user.con *'
holds "$work/User.con" "$work/user.wanted" || fail "user.con is not as it was written: $(diff --text "$work/user.wanted" "$work/User.con" | head -n 20)"
holds "$work/Game.con" "$work/game.wanted" || fail "game.con is not as it was written: $(diff --text "$work/game.wanted" "$work/Game.con" | head -n 20)"

key ctrl+w
demand "the document stays open" titled 'game.con *'
key ctrl+Home
type 'x'
demand "the first view cannot be written to" titled 'game.con\* *'
key BackSpace ctrl+s
demand "the first view cannot be saved" titled 'game.con *'
holds "$work/Game.con" "$work/game.wanted" || fail "game.con has changed when the second view was closed"
key ctrl+q
demand "the program does not end" gone
