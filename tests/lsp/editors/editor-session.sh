#!/usr/bin/env bash
# Another editor repairs, tunes and renames a mod of three files through "tessel lsp", and the mod
# checks clean afterwards: editor-session.sh nvim|emacs TESSEL DATA
# The editor works as it does for a person, but for the keys: its own commands, its own buffers.
set -euo pipefail
editor=$1 tessel=$(realpath "$2") data=$(realpath "$3")
here=$(cd "$(dirname "$0")" && pwd)
command -v "$editor" >/dev/null || { echo "$editor is not installed: see scripts/packages.sh" >&2; exit 1; }

dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
export HOME=$dir/home XDG_CONFIG_HOME=$dir/home XDG_DATA_HOME=$dir/home XDG_STATE_HOME=$dir/home
export ZANTHMAN_STORE=$dir/settings.db
mkdir -p "$HOME" "$dir/mod"

# A doubled line and one that lacks, a comment that is not closed, and a byte that is no ASCII.
grep -av '^define TROOPSTRENGTH' "$data/zmuser.dat" \
  | sed 's/^\(define PIGCOPSTRENGTH.*\)\r$/\1\r\n\1\r/; 1s/^/\/\/ worth 5 \x80\r\n/' >"$dir/mod/USER.CON"
sed '0,/^define/s//\/* all names of sprites\r\ndefine/' "$data/zmdefsp.dat" >"$dir/mod/DEFS.CON"
cp "$data/zmgamep.dat" "$dir/mod/GAME.CON"

fail() { echo "$*" >&2; exit 1; }
before=$("$tessel" check "$dir"/mod/*.CON || true)
for rule in open-comment doubled-define panel-missing; do
  [[ $before == *"[$rule]"* ]] || fail "there is no $rule to be repaired"
done

export TESSEL=$tessel MOD=$dir/mod
case $editor in
  nvim) timeout 120 nvim --headless -i NONE -u "$here/session.lua" ;;
  emacs) timeout 120 emacs --batch -l "$here/session.el" ;;
  *) fail "unknown editor $editor" ;;
esac || fail "the session in $editor failed with status $?"

after=$("$tessel" check "$dir"/mod/*.CON) || fail "the mod has errors: $after"
[ -z "$after" ] || fail "the mod is not clean: $after"
value() { "$tessel" get "$dir/mod/USER.CON" "$1"; }
[ "$(value Trooper)" = 50 ] || fail "Trooper is $(value Trooper)"
[ "$(value 'Pig Cop')" = 90 ] || fail "Pig Cop is $(value 'Pig Cop')"
[ "$(value QSIZE)" != "" ] || fail "the user file is not converted"
grep -aq $'^// worth 5 \x80\r$' "$dir/mod/USER.CON" || fail "a byte of the comment has changed"
grep -aqw GORE "$dir/mod/DEFS.CON" && grep -aqw GORE "$dir/mod/GAME.CON" || fail "the name is not changed"
! grep -aqw BLOOD "$dir"/mod/*.CON || fail "the old name is there still: $(grep -anw BLOOD "$dir"/mod/*.CON)"
! grep -aqv $'\r$' "$dir"/mod/*.CON || fail "line ends have changed: $(grep -anv $'\r$' "$dir"/mod/*.CON | head -3)"
