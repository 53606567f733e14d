#!/usr/bin/env bash
# A person types for several seconds without a rest: every key is flushed within 2 seconds, by the program's own log.
#
# Usage: typing-session.sh ZANTH-MANAGER DATA-DIRECTORY
set -euo pipefail
program=$1 data=$2

. "$(dirname "$0")/display.sh"

most=2000  # milliseconds from the key to the flushed text
log=$work/log
file=$work/User.con
cp "$data/zmuserp.dat" "$file"
fail() { echo "$*" >&2; tail -n 40 "$log" "$work/errors" >&2; exit 1; }
wait_for() { for _ in $(seq 100); do "$@" && return; sleep 0.1; done; return 1; }

ZANTHMAN_LOG=$log "$program" --light --size 1000x760 --host-dir "$data" "$file" 2>"$work/errors" &
find_window
wait_for eval '[[ $(shows) == *ser.con* ]]' || fail "the file is not open: $(shows)"
xdotool mousemove 500 500 click 1
sleep 0.3
xdotool key ctrl+Home
: >"$log"
# Words of many lengths, for at least 5 seconds.
text=$(printf 'steady typing %d goes on ' $(seq 25))
xdotool type --delay 25 "$text"

# Every key belongs to the next text that is taken; a text is kept when it, or a later one, is.
all_kept() { awk '$2 == "key" { left++ } $2 == "taken" { n[$3] = left; left = 0 } $2 == "kept" { last = $3 }
  $2 == "taken" { newest = $3 } END { exit !(left == 0 && last == newest && newest > 0) }' "$log"; }
wait_for all_kept || fail "the last keys are not kept"
awk -v most="$most" -v typed="${#text}" '
  $2 == "key" { came[++keys] = $1 }
  $2 == "taken" { until[$3] = keys }
  $2 == "kept" { while (kept < until[$3]) { d = $1 - came[++kept]; sum += d; if (d > worst) worst = d } texts++ }
  END {
    printf "%d keys in %d ms, %d texts kept, mean %d ms, worst %d ms\n", keys, came[keys] - came[1], texts, sum / keys, worst
    exit !(keys >= typed && kept == keys && texts >= 3 && came[keys] - came[1] >= 5000 && worst <= most)
  }' "$log" || fail "a key was kept too late, or was not typed steadily"
