#!/usr/bin/env bash
# The plug is pulled while a person types on, round after round: the program is killed on a real X display at
# a random moment between two keys or at one. The next start offers the text; recovered and saved, the file
# ends with what was typed, all but the keys of the last two seconds. Nothing else ever changes the file.
#
# Usage: killed-typing-session.sh ZANTH-MANAGER DATA-DIRECTORY
# TESSEL_TYPING_KILLS says how often, TESSEL_SEED when.
set -euo pipefail
program=$1 data=$2
rounds=${TESSEL_TYPING_KILLS:-20} seed=${TESSEL_SEED:-7}
RANDOM=$seed

. "$(dirname "$0")/display.sh"

file=$work/User.con wanted=$work/wanted sent=$work/sent
cp "$data/zmuserp.dat" "$file"
cp "$file" "$wanted"
fail() { echo "round $round of $rounds, seed $seed: $*" >&2; cat "$work/errors" >&2; exit 1; }
wait_for() { for _ in $(seq 200); do "$@" && return; sleep 0.05; done; return 1; }
open() { [[ $(shows) == user.con* || $(shows) == User.con* ]]; }
kept() { compgen -G "$work/state/ZanthMan/recovery/run-*/text-*" >/dev/null; }
word() { printf '%d.%d ' "$round" "$1"; }

# Types word after word, and notes when each was sent.
type_on() {
  local i
  for ((i = 0; i < 1000; ++i)); do
    xdotool type --delay 8 "$(word "$i")"
    echo "$EPOCHREALTIME" >>"$sent"
  done
}
# What may be lost: the words that were sent within two seconds before the kill.
old_words() { awk -v killed="$1" '$1 < killed - 2 { n++ } END { print n + 0 }' "$sent"; }

# Takes what the next start offers, saves it, and adds it to what is wanted. WORDS have to be there.
recover() {
  local old=$1 gained sent_words
  if ! kept; then
    [ "$old" -eq 0 ] || fail "$old words should have been kept, and none was"
    open_window "$file"
    wait_for open || fail "the file is not open: $(shows)"
    return
  fi
  open_window
  xdotool key alt+r
  wait_for modified || fail "the text has not been recovered: $(shows)"
  xdotool mousemove 500 500 click 3                # the editor's menu
  sleep 0.2
  xdotool key f
  sleep 0.2
  xdotool key s
  wait_for saved || fail "the file has not been saved: $(shows)"
  gained=$(($(stat -c %s "$file") - $(stat -c %s "$wanted")))
  # One word may have been on its way.
  sent_words=$(for ((i = 0; i <= $(wc -l <"$sent"); ++i)); do word "$i"; done)
  printf '%s' "${sent_words:0:gained}" >>"$wanted"
  cmp "$wanted" "$file" || fail "the file does not end with what was typed"
  [ "$(tail -c "$gained" "$file" | tr -cd ' ' | wc -c)" -ge "$old" ] ||
    fail "$old words were sent more than two seconds before the kill: $(tail -c "$gained" "$file")"
}

round=0
open_window "$file"
wait_for open || fail "the file is not open: $(shows)"
for ((round = 1; round <= rounds; ++round)); do
  xdotool mousemove 500 500 click 1
  sleep 0.2
  xdotool key ctrl+End
  : >"$sent"
  type_on &
  typist=$!
  sleep "$((RANDOM % 4)).$((RANDOM % 900 + 100))"
  killed=$EPOCHREALTIME
  kill -9 "$pid"
  kill "$typist"
  wait "$pid" "$typist" 2>/dev/null || true
  cmp "$wanted" "$file" || fail "the file on the disk has changed"
  recover "$(old_words "$killed")"
done
echo "$rounds kills; of the typing $(($(stat -c %s "$file") - $(stat -c %s "$data/zmuserp.dat"))) bytes were recovered"
