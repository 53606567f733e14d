#!/usr/bin/env bash
# Usage: check-tests.sh SOURCES
# Fails when docs/reliability.md names a test that is not there, or lacks one of the 43 faults.
set -uo pipefail
cd "$1" || exit 1
status=0
checked=0

complain() { echo "docs/reliability.md: $*"; status=1; }
# is_there FOLDER SUITE NAME: as tests/FOLDER has it, on one line or broken behind the comma.
is_there() { cat "tests/$1"/*.cpp | tr -s '\n ' '  ' | grep -qE "(TEST|PROP)[A-Z_]*\($2, ?$3[,)]"; }

# Each fault on a line of its own, with the indented lines that follow it.
faults=$(sed -n '/^## The faults, by number/,/^## /p' docs/reliability.md |
  awk '/^[0-9]+\. / { if (row) print row; row = $0; next } /^  / && row { row = row " " $0 } END { print row }')
expected=$(seq 43)
[ "$(cut -d. -f1 <<<"$faults")" = "$expected" ] || complain "the faults are not numbered from 1 to 43"
while read -r row; do
  [[ $row == *'`'* || $row == *'**: partly'* || $row == *'**: no'* ]] || complain "no test: $row"
done <<<"$faults"

while read -r test; do
  checked=$((checked + 1))
  case $test in
    desktop.*) [ -x "tests/desktop/${test#desktop.}.sh" ] || complain "there is no test $test" ;;
    locales.*) grep -q "^ *tessel_locale_test(${test#locales.} " tests/locales/CMakeLists.txt ||
      complain "there is no test $test" ;;
    fuzz.*) [ -e "tests/fuzz/${test#fuzz.}.cpp" ] || complain "there is no test $test" ;;
    *.*.*) IFS=. read -r folder suite name <<<"$test"
      is_there "$folder" "$suite" "$name" || complain "there is no test $test" ;;
  esac
done < <(grep -oE '`[a-z]+\.[A-Za-z.-]+`' <<<"$faults" | tr -d '`')
[ "$checked" -ge 43 ] || complain "only $checked tests are named"
exit $status
