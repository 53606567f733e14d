#!/usr/bin/env bash
# Dialogs and message boxes, by keyboard alone under a window manager: each comes to the front, takes the keys,
# and gives them back to the text when it goes. What is on disk in the end is what these keys make of the file.
#
# Usage: dialogs-session.sh ZANTH-MANAGER DATA-DIRECTORY
set -euo pipefail
program=$1 data=$2

. "$(dirname "$0")/managed-display.sh"

printf 'define FIRST 1\r\ndefine SECOND 2\r\ndefine THIRD 3\r\n' >"$work/User.con"
cp "$work/User.con" "$work/before"
printf 'define FIRST 1\r\ndefine NEXT 2\r\nnew define THIRD 3\r\n' >"$work/wanted"
dialog_in_front() { [ "$(xdotool getactivewindow)" != "$window" ]; }
exists() { [ -s "$1" ]; }

start "$work/User.con"
demand "the file is not open" titled 'user.con *'

# The find dialog leaves what it has found selected.
key ctrl+f
demand "no find dialog" in_front 'Find*'
type SECOND
key Return
demand "the find dialog stays" main_in_front
type NEXT
demand "nothing was typed" titled 'user.con\* *'

key ctrl+g
demand "no dialog for the line" dialog_in_front
key 3 Return
demand "the dialog for the line stays" main_in_front
type 'new '

# The question of a closing document: Cancel leaves it, and nothing has happened.
key ctrl+w
demand "nobody asks before the text is dropped" dialog_in_front
key Escape
demand "the question stays" main_in_front
titled 'user.con\* *' || fail "the document is gone"

key ctrl+comma
demand "no preferences" in_front 'Preferences*'
key Escape
demand "the preferences stay" main_in_front

key alt+g a
demand "no dialog for the range" dialog_in_front
key Escape
demand "the dialog for the range stays" main_in_front

key ctrl+shift+s
demand "no dialog to save a file" in_front 'Save As*'
key ctrl+a
type "$work/Other.con"
key Return
demand "nothing was saved under the new name" exists "$work/Other.con"
demand "the dialog to save stays" main_in_front
demand "the document has not the new name" titled 'other.con *'
holds "$work/Other.con" "$work/wanted" || fail "the new file is not what was typed: $(<"$work/Other.con")"
holds "$work/User.con" "$work/before" || fail "the old file has changed"

# No: what was typed is dropped, and the document goes.
type unwanted
demand "nothing was typed" titled 'other.con\* *'
key ctrl+w
demand "nobody asks before the text is dropped" dialog_in_front
key alt+n
demand "the document stays" titled 'Zanth Manager'
holds "$work/Other.con" "$work/wanted" || fail "dropped text was saved"
key ctrl+q
demand "the program does not end" gone
