#!/usr/bin/env bash
# A day's work by mouse, under a window manager; only texts, and the letters of items of the menu bar, are typed.
# Opens a file by the toolbar, drags a word of the text to another place, changes a value in the settings panel,
# replaces everywhere by the find bar, saves by the editor's menu, goes from tab to tab and closes by the tab's
# button. What is on disk in the end must be what these clicks make of the file, byte for byte.
#
# Usage: mouse-session.sh ZANTH-MANAGER DATA-DIRECTORY
set -euo pipefail
program=$1 data=$2

. "$(dirname "$0")/managed-display.sh"

cp "$data/zmuserp.dat" "$work/User.con"
cp "$data/zmgamep.dat" "$work/Game.con"
sed -E '2s,for( version 1.4/1.5),\1for,; s/^(define MAXPLAYERHEALTH +)100/\1175/; s/health/vigour/gI' \
  "$data/zmuserp.dat" >"$work/wanted"

at() { xdotool mousemove --sync --window "$window" "$1" "$2"; }
click() { at "$1" "$2"; xdotool click "${3-1}"; }
# A menu is a window of its own.
menus() { [ "$(xdotool search --onlyvisible --class zanth | wc -l)" = "$((1 + $1))" ]; }
# save TITLE: by the editor's menu, until the title is TITLE.
save() {
  click 500 434 3
  demand "the editor's menu does not open" menus 1
  click 530 446
  demand "its file menu does not open" menus 2
  click 660 490
  demand "nothing is saved" titled "$1"
  demand "the menu stays" menus 0
}
# open_menu X: the one of the menu bar whose title is there.
open_menu() {
  click "$1" 9
  demand "the menu does not open" menus 1
}
# Takes the word "for" of the second line and drops it behind the line's end.
drag_word() {
  at 165 214
  xdotool click --repeat 2 --delay 40 1
  at 175 214
  xdotool mousedown 1
  for x in 190 230 300 400 450 470 480; do at "$x" 214; done
  xdotool mouseup 1
}

start "$work/Game.con"
demand "the file is not open" titled 'game.con *'
click 59 34                                        # the toolbar's second button
demand "no dialog to open a file" in_front 'Open*'
type "$work/User.con"
key Return
demand "the file is not open" titled 'user.con *'

drag_word
demand "the word has not been moved" titled 'user.con\* *'
save 'user.con *'

click 70 94                                        # Max Regular Health
click 320 97                                       # its value
key ctrl+a
type 175
demand "the value is not in the text" titled 'user.con\* *'
save 'user.con *'

open_menu 80                                       # Search
key r
demand "the menu stays" menus 0
click 300 696
type health
click 300 723
type vigour
click 726 723                                      # Replace All
demand "nothing was replaced" titled 'user.con\* *'
click 985 696                                      # the bar's cross
save 'user.con *'
holds "$work/User.con" "$work/wanted" || fail "user.con is not as it was made: $(diff --text "$work/wanted" "$work/User.con" | head -n 20)"

click 60 727                                       # the first tab
demand "the first tab does not come to the front" titled 'game.con *'
click 205 727                                      # the second tab's cross
click 98 727                                       # the first tab's
demand "a tab stays" titled 'Zanth Manager'
open_menu 20                                       # File
key q
demand "the program does not end" gone
