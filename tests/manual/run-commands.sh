#!/usr/bin/env bash
# Usage: run-commands.sh TEXT HEADING DIRECTORY-OF-TESSEL DATA
# Runs the lines that the text shows in the first block below the heading, from top to bottom,
# beside the files of version 1.3D and a page of values, and asks with other commands whether each
# did what it says.
set -uo pipefail
text=$1 heading=$2 data=$4
export PATH=$3:$PATH
directory=$(mktemp -d)
trap 'rm -rf "$directory"' EXIT
export ZANTHMAN_STORE=$directory/settings.db
cd "$directory" || exit 1
cp "$data/zmuser.dat" User.con
cp "$data/zmdefs.dat" Defs.con
cp "$data/zmgame.dat" Game.con
printf '[values]\nMAXPLAYERHEALTH = 120\n' >page.toml
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

# The templates have no errors; a file that a check cannot read ends it.
check_check() { ! grep -q ' error: ' answer || complain "finds errors in the templates"; }
check_diff() { grep -qF '| QSIZE | - | 64 |' answer || complain "does not show what the conversion adds"; }
check_apply() { what_is "$(tessel get "$2" MAXPLAYERHEALTH)" 120; }

check_new() {
  cmp -s "$(output "$1" "$@")" "$data/zmuserp.dat" || complain "is not the template of a user file"
}

# Of these the output is all there is; the word list is empty in the beginning.
check_settings() { [ -s answer ] || complain "says nothing"; }
check_levels() { what_is "$(wc -l <answer)" "$(grep -c '^definelevelname' "$1")"; }
check_colour() { grep -q '<span style="color:' answer || complain "colours nothing"; }
check_words() { what_is "$(<answer)" ""; }

mapfile -t lines < <(awk -v heading="## $heading" '
  $0 == heading { below = 1; next }
  below && /^```/ { if (inside) exit; inside = 1; next }
  inside' "$text")
[ ${#lines[@]} -gt 0 ] || { echo "$text shows no commands"; exit 1; }

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
