#!/usr/bin/env bash
# Usage: check-options.sh SOURCES PROGRAM [SUBCOMMAND...]
# Fails when a long option that --help lists is missing in the manual page or a completion.
set -euo pipefail
sources=$1 program=$2
shift 2
name=$(basename "$program")
export QT_QPA_PLATFORM=offscreen

page=$(groff -man -Tascii -P-cbou "$sources/docs/man/$name.1")
bash_completion=$(<"$sources/share/completions/$name.bash")
zsh_completion=$(<"$sources/share/completions/_$name")
fish_completion=$(<"$sources/share/completions/$name.fish")
status=0

expect() {
  [[ $2 =~ (^|[^a-z-])$3($|[^a-z-]) ]] || { echo "$1 lacks $3"; status=1; }
}

for command in "" "$@"; do
  # shellcheck disable=SC2086
  options=$("$program" $command --help | grep -oE -- '(^|[ ,])--[a-z-]+' | tr -d ' ,' | sort -u)
  [ -n "$options" ] || { echo "$command --help lists no options"; status=1; }
  for option in $options; do
    expect "The manual page" "$page" "$option"
    expect "The bash completion" "$bash_completion" "$option"
    expect "The zsh completion" "$zsh_completion" "$option"
    expect "The fish completion" "$fish_completion" "-l ${option#--}"
  done
  for word in $command; do
    expect "The manual page" "$page" "$word"
    expect "The bash completion" "$bash_completion" "$word"
    expect "The zsh completion" "$zsh_completion" "$word"
    expect "The fish completion" "$fish_completion" "$word"
  done
done
exit $status
