#!/usr/bin/env bash
# Words, by keyboard alone under a window manager: a name is completed from the list, and a word is replaced in
# all open documents at once. What is on disk in the end is what these keys make of the files.
#
# Usage: words-session.sh ZANTH-MANAGER DATA-DIRECTORY
set -euo pipefail
program=$1 data=$2

. "$(dirname "$0")/managed-display.sh"

cp "$data/zmuserp.dat" "$work/User.con"
cp "$data/zmgamep.dat" "$work/Game.con"
{ printf 'MAXPLAYERATOMICHEALTH\r\n'; sed 's/zanth/hero/gI' "$data/zmuserp.dat"; } >"$work/user.wanted"
sed 's/zanth/hero/gI' "$data/zmgamep.dat" >"$work/game.wanted"
list_open() { [ "$(xdotool search --onlyvisible --class zanth | wc -l)" -gt 1 ]; }
list_gone() { ! list_open; }

start "$work/Game.con" "$work/User.con"
demand "the files are not open" titled 'user.con *'

key ctrl+h
type zanth
key Tab
type hero
key alt+m
demand "nothing was replaced" titled 'user.con\* *'
key Escape

key ctrl+Home Return Up
type MAXPLAYERA
key ctrl+space
demand "there is no list of names" list_open
key Return
demand "the list stays" list_gone

key ctrl+s
demand "the first file is not saved" titled 'user.con *'
key ctrl+Tab
demand "the second file is not changed" titled 'game.con\* *'
key ctrl+s
demand "the second file is not saved" titled 'game.con *'
for file in User Game; do
  holds "$work/$file.con" "$work/${file,}.wanted" ||
    fail "$file.con is not as it was written: $(diff --text "$work/${file,}.wanted" "$work/$file.con" | head -n 20)"
done
key ctrl+q
demand "the program does not end" gone
