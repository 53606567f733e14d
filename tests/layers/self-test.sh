#!/usr/bin/env bash
# The check of the layers finds what it is there for: self-test.sh
set -euo pipefail
check=$(cd "$(dirname "$0")" && pwd)/check-layers.sh
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
mkdir -p "$dir"/src/{low,high} "$dir"/docs
printf '%s\n' '| folder | holds | may use |' '|---|---|---|' '| `low` | x | |' '| `high` | y | `low` |' >"$dir"/docs/architecture.md
echo '#pragma once' >"$dir"/src/low/Low.h
printf '%s\n' '// The upper one.' '#include "low/Low.h"' >"$dir"/src/high/High.h

expect() {  # WHAT STATUS TEXT
  local output status=0
  output=$(bash "$check" "$dir" 2>&1) || status=$?
  if [ "$status" -ne "$2" ] || [[ "$output" != *"$3"* ]]; then
    echo "$1: status $status, output: $output" >&2
    exit 1
  fi
}

expect "arrows downwards" 0 ""
printf '%s\n' '#pragma once' '#include "high/High.h"' >"$dir"/src/low/Low.h
expect "an arrow upwards" 1 "src/low/Low.h:2: low/ may not use high/ (high/High.h)"
echo '#pragma once' >"$dir"/src/low/Low.h
mkdir "$dir"/src/other && echo '#include "low/Low.h"' >"$dir"/src/other/Other.cpp
expect "a folder without a row" 1 "src/other/ has no row"
rm -r "$dir"/src/other
echo '| `mid` | z | `later` |' >>"$dir"/docs/architecture.md
expect "a row that uses what has none" 1 "which has no row above it"
sed -i '$d' "$dir"/docs/architecture.md
sed -i 's/| `low` |$/| |\n| | | `low` |/' "$dir"/docs/architecture.md
expect "a row that goes on" 0 ""
sed -i '$d' "$dir"/docs/architecture.md
expect "a row that does not" 1 "src/high/High.h:2: high/ may not use low/ (low/Low.h)"
for i in $(seq 41); do : >"$dir/src/low/F$i.h"; done
expect "a folder that is too large" 1 "low/ has more than 40 files"
