#!/usr/bin/env bash
# Usage: run-commands.sh MANUAL DIRECTORY-OF-TESSEL DATA
# Runs the lines that the manual shows for the command line, from top to bottom, beside a user file
# of version 1.3D, and asks with other commands whether each did what it says.
set -uo pipefail
manual=$1 data=$3
export PATH=$2:$PATH
directory=$(mktemp -d)
trap 'rm -rf "$directory"' EXIT
export ZANTHMAN_STORE=$directory/settings.db
cd "$directory" || exit 1
cp "$data/zmuser.dat" User.con
status=0

complain() { echo "\"$line\": $*"; status=1; }

# what_is "what comes out" "what should"
what_is() { [ "$1" = "$2" ] || complain "gives \"$1\" instead of \"$2\""; }

# option NAME WORD...: the word behind the option, nothing where it is missing.
option() {
  local name=$1
  shift
  while [ $# -gt 0 ]; do
    [ "$1" != "$name" ] || { printf '%s' "${2-}"; return; }
    shift
  done
}

# output FILE WORD...: where the result is: the file named behind -o, or FILE itself.
output() {
  local named
  named=$(option -o "$@")
  printf '%s' "${named:-$1}"
}

check_convert() {
  local converted
  converted=$(output "$@")
  what_is "$(tessel get "$converted" QSIZE)" 64
  tessel convert "$converted" >again 2>messages && complain "left a file that can be converted once more"
  what_is "$(cat again)" ""
}

# set FILE ITEM VALUE, or FILE ITEM=VALUE...
check_set() {
  local file=$1 word
  if [[ $2 != *=* ]]; then
    what_is "$(tessel get "$(output "$@")" "$2")" "$3"
    return
  fi
  for word in "${@:2}"; do
    [[ $word != --* ]] || break
    what_is "$(tessel get "$file" "${word%%=*}")" "${word#*=}"
  done
  cmp -s before.con "$file~" || complain "keeps no backup"
}

check_get() {
  local row
  row=$(tessel settings "$1" | grep -F -- "  $2  ") || complain "is no item that settings lists"
  what_is "$(<answer)" "${row##* }"
}

check_randomize() {
  local section lower upper values outside
  section=$(option --section "$@") lower=$(option --lower "$@") upper=$(option --upper "$@")
  [ "$section" != All ] || section=""
  values=$(tessel settings "$(output "$@")" ${section:+--section "$section"} | awk '{ print $NF }' |
    grep -E '^-?[0-9]+$') || complain "left no values"
  outside=$(awk -v lower="$lower" -v upper="$upper" '$1 < lower || $1 > upper' <<<"$values")
  what_is "$outside" ""
  [ "$(sort -u <<<"$values" | wc -l)" -gt 1 ] || complain "gave every item the same value"
}

check_level() {
  what_is "$(tessel level "$(output "$@")" "$2")" "$(option --map "$@")"$'\t'"$(option --title "$@")"
}

check_new() {
  cmp -s "$(output "$1" "$@")" "$data/zmuserp.dat" || complain "is not the template of a user file"
}

# Of these the output is all there is; the word list is empty in the beginning.
check_settings() { [ -s answer ] || complain "says nothing"; }
check_levels() { what_is "$(wc -l <answer)" "$(grep -c '^definelevelname' "$1")"; }
check_colour() { grep -q '<span style="color:' answer || complain "colours nothing"; }
check_words() { what_is "$(<answer)" ""; }

# The block of the section about the command line.
mapfile -t lines < <(sed -n '/^## The command line/,$p' "$manual" | sed -n '/^```/,/^```/p' | grep -v '^```')
[ ${#lines[@]} -gt 0 ] || { echo "$manual shows no commands"; exit 1; }

for line in "${lines[@]}"; do
  cp User.con before.con
  words=()
  eval "words=($line)"
  command=${words[1]}
  if [ "${words[0]}" != tessel ] || ! declare -F "check_$command" >/dev/null; then
    complain "is no command that is known here"
    continue
  fi
  if ! eval "$line" >answer 2>messages; then
    complain "fails: $(<messages)"
    continue
  fi
  "check_$command" "${words[@]:2}"
  [[ $line == *--in-place* ]] || cmp -s before.con User.con || complain "changes User.con"
done
exit $status
