#!/usr/bin/env bash
# Files are dragged from another program's window and dropped on the text, under a window manager: they are
# opened, each in a tab, and nothing of them is put into the text.
#
# Usage: drop-session.sh ZANTH-MANAGER DATA-DIRECTORY DRAG-SOURCE
set -euo pipefail
program=$1 data=$2 drag_source=$3

. "$(dirname "$0")/managed-display.sh"

printf 'define KEPT 1\r\n' >"$work/Kept.con"
printf 'define FIRST 1\r\n' >"$work/First.con"
printf 'define SECOND 2\r\n' >"$work/Second.con"

start "$work/Kept.con"
demand "the file is not open" titled 'kept.con *'
"$drag_source" "$work/First.con" "$work/Second.con" >"$work/drag" 2>"$work/source-errors" &
timeout 20 xdotool search --sync --onlyvisible --name '^Files$' >/dev/null

at() { xdotool mousemove --sync --window "$window" "$1" "$2"; }
# The pointer moves as long as it takes the program to say that it would have the files.
over_text() { at "$((480 + RANDOM % 40))" 450; tail -n 1 "$work/drag" | grep -q taken; }
at 1055 335
xdotool mousedown 1
demand "the files are not taken" over_text
xdotool mouseup 1
demand "the files are not open" titled 'second.con *'
main_in_front || xdotool windowfocus --sync "$window"

# Every document closes without a question: nothing was put into any.
key ctrl+w
demand "the last file does not close" titled 'first.con *'
key ctrl+w
demand "the first file does not close" titled 'kept.con *'
key ctrl+w
demand "the text has been changed" titled 'Zanth Manager'
key ctrl+q
demand "the program does not end" gone
