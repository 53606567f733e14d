#!/usr/bin/env bash
# Usage: type-prefixes.sh SHELL SHARE DIRECTORY-OF-TESSEL FILE
# Starts the shell, types the beginnings of commands, presses Tab and reads what the line has become.
# Status 77, with a word, where there is no such shell.
set -uo pipefail
shell=$1 share=$2 file=$4
export PATH=$3:$PATH
command -v "$shell" >/dev/null || { echo "SKIPPED: there is no $shell on this machine"; exit 77; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$file" "$work/User.con"
cd "$work" || exit 1
export HOME=$work ZDOTDIR=$work XDG_CONFIG_HOME=$work/.config XDG_DATA_HOME=$work/.local/share TERM=dumb
status=0
checked=0

# completed PREFIX: the line after Tab, or what is offered where there are several.
completed_by_bash() {
  bash --norc --noprofile -c '
    source "$1/completions/tessel.bash"
    compopt() { :; }
    read -ra COMP_WORDS <<<"$2"
    [[ $2 != *" " ]] || COMP_WORDS+=("")
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1)) COMP_LINE=$2 COMP_POINT=${#2}
    spec=$(complete -p tessel)
    ${spec//complete -F /} >/dev/null
    printf "%s\n" "${COMPREPLY[@]}"' bash "$share" "$1"
}
completed_by_fish() {
  mkdir -p "$XDG_CONFIG_HOME/fish/completions"
  cp "$share/completions/tessel.fish" "$XDG_CONFIG_HOME/fish/completions/"
  fish -c 'complete -C (string join " " -- $argv)' "$1" 2>/dev/null | cut -f 1
}
# zsh completes only in a line that is being typed: on a terminal of its own. Tab after Tab puts one
# match after the other into the line; Ctrl+X prints the line and empties it.
completed_by_zsh() {
  zsh -f -c '
    zmodload zsh/zpty
    zpty typed zsh -f -i
    zpty -w typed "PROMPT= PROMPT2=; fpath=($1 \$fpath); autoload -Uz compinit; compinit -u -d $2/dump; stty -echo"
    zpty -w typed "function show() { print -r -- \"BEGIN\$BUFFER\"END; zle kill-buffer }"
    zpty -w typed "zle -N show; bindkey \"^X\" show; bindkey \"^I\" menu-complete; print -r -- READY-\$((40 + 2))"
    zpty -r -m typed got "*READY-42*" || exit 1
    for tabs in {1..4}; do
      zpty -n -w typed "$3${(pl:tabs::\t:)}"$'"'"'\x18'"'"'
      zpty -r -m typed got "*BEGIN*END*" || exit 1
      got=${got##*BEGIN}
      print -r -- ${got%%END*}
    done' zsh "$share/completions" "$work" "$1" | sed 's/ *$//; s/.* //'
}

# offers PREFIX WORD...: each of the words is offered.
offers() {
  local prefix=$1 answer word
  shift
  answer=$("completed_by_$shell" "$prefix" | tr -d '\r')
  checked=$((checked + 1))
  for word in "$@"; do
    grep -qxF -- "$word" <<<"$answer" || { echo "$shell: \"$prefix\" does not offer $word but: ${answer//$'\n'/ }"; status=1; }
  done
}
# offers_not PREFIX WORD: and this word is not.
offers_not() {
  local answer
  answer=$("completed_by_$shell" "$1" | tr -d '\r')
  ! grep -qxF -- "$2" <<<"$answer" || { echo "$shell: \"$1\" offers $2"; status=1; }
}

offers "tessel co" convert colour
offers "tessel he" help
offers_not "tessel co" words
offers "tessel set User.con --ba" --backup
offers "tessel set User.con --dr" --dry-run
offers "tessel convert User.con --line-ends k" keep
offers "tessel randomize User.con --pe" --percent
offers "tessel randomize User.con --section W" Weapon
offers "tessel settings User.con --j" --json
offers_not "tessel settings User.con --i" --in-place
offers "tessel levels User.con --t" --tsv
offers "tessel get User.con MAXPLAYER" MAXPLAYERHEALTH MAXPLAYERATOMICHEALTH
offers "tessel set User.con STARTARM" STARTARMORHEALTH
offers "tessel level User.con 0/" 0/0 0/1
offers "tessel words ex" export
offers "tessel new 15" 15AU 15AD 15AG
offers "tessel help wo" words
offers "tessel get Us" User.con
[ "$checked" -gt 10 ] || status=1
exit $status
