#!/usr/bin/env bash
# Usage: accept-scenarios.sh [NAME...]
# Puts what came in the place of what was expected: every NAME.scenario.new that a scenario that fails
# leaves beside it, or only those of NAME, such as documents/open. Shows each difference. Look at it
# first: a scenario is the only judge of what it shows.
set -euo pipefail
cd "$(dirname "$0")/../tests/scenarios"

case "${1-}" in -*) sed -n 's/^# //p' "$0" | head -n 1 >&2; exit 2 ;; esac

shopt -s nullglob
if [ $# -gt 0 ]; then fresh=("${@/%/.scenario.new}"); else fresh=(*/*.scenario.new); fi
for new in "${fresh[@]}"; do
  [ -f "$new" ] || { echo "there is no tests/scenarios/$new" >&2; exit 1; }
  diff -u "${new%.new}" "$new" || true
  mv "$new" "${new%.new}"
done
echo "${#fresh[@]} accepted"
