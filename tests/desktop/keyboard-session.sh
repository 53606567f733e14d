#!/usr/bin/env bash
# A day's work by keyboard alone, under a window manager: opens two files through the dialog, changes a value in
# the settings panel, finds, replaces everywhere in a file, comments lines, goes from document to document,
# saves and closes. What is on disk in the end must be what these keys make of the files, byte for byte.
#
# Usage: keyboard-session.sh ZANTH-MANAGER DATA-DIRECTORY
set -euo pipefail
program=$1 data=$2

. "$(dirname "$0")/managed-display.sh"

cp "$data/zmuserp.dat" "$work/User.con"
cp "$data/zmgamep.dat" "$work/Game.con"
# What the keys below have to make of them.
sed -E 's/^(define MAXPLAYERHEALTH +)100/\1175/; s/health/vigour/gI; 1s,^,// ,; 2s,USER,// USER,' "$data/zmuserp.dat" >"$work/user.wanted"
{ printf 'first '; cat "$data/zmgamep.dat"; } >"$work/game.wanted"

start
open_by_key "$work/User.con" 'user.con *'

# The panel: back from the text to the categories, the first item of the list, its value.
key shift+F6 Tab Home Tab ctrl+a
type 175
demand "the value is not in the text" titled 'user.con\* *'

key ctrl+s
demand "the value is not saved" titled 'user.con *'

# From the box of the value to the find bar, and the word it looked for replaced everywhere.
key ctrl+e
type health
key Escape ctrl+h Tab
type vigour
key alt+l
demand "nothing was replaced" titled 'user.con\* *'
key Escape

# The first two lines become comments.
key ctrl+Home shift+Down shift+Down ctrl+slash

open_by_key "$work/Game.con" 'game.con *'
key ctrl+Home
type 'first '
demand "the second file is not changed" titled 'game.con\* *'
key ctrl+s
demand "the second file is not saved" titled 'game.con *'
key ctrl+Tab
demand "Ctrl+Tab does not go back" titled 'user.con\* *'
key ctrl+s
demand "the first file is not saved" titled 'user.con *'
holds "$work/User.con" "$work/user.wanted" || fail "user.con is not as it was written: $(diff --text "$work/user.wanted" "$work/User.con" | head -n 20)"
holds "$work/Game.con" "$work/game.wanted" || fail "game.con is not as it was written: $(diff --text "$work/game.wanted" "$work/Game.con" | head -n 20)"

key ctrl+w
demand "the first file stays open" titled 'game.con *'
key ctrl+w
demand "the second file stays open" titled 'Zanth Manager'
key ctrl+q
demand "the program does not end" gone
