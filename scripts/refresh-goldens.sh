#!/usr/bin/env bash
# Usage: refresh-goldens.sh [--accept]
# Builds the tests that compare with goldens, writes what comes out now as NAME.new beside each golden
# that differs, and shows the difference. --accept puts it in the golden's place. Look at the
# difference first: a golden is the only judge of its text. Exits 1 while one differs.
set -euo pipefail
cd "$(dirname "$0")/.."

accept=false
case "${1-}" in
  --accept) accept=true ;;
  "") ;;
  *) sed -n 's/^# //p' "$0" | head -n 1 >&2; exit 2 ;;
esac

build=build/${PRESET:-release}
goldens=tests/converter/golden
cmake --preset "${PRESET:-release}" -DTESSEL_TESTS=ON >/dev/null
cmake --build "$build" --target test_converter -j "$(nproc)" | tail -n 1

out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
TESSEL_GOLDEN_OUT=$out "$build/tests/test_converter" --gtest_filter='ConvertedFile.*' >"$out/log" || true
names=("$goldens"/*.converted.*)
differing=0
for golden in "${names[@]}"; do
  case $golden in *.new) continue ;; esac
  fresh=$out/$(basename "$golden")
  [ -f "$fresh" ] || { cat "$out/log"; echo "nothing came out for $golden"; exit 1; }
  rm -f "$golden.new"
  cmp -s "$fresh" "$golden" && continue
  if diff -u --strip-trailing-cr "$golden" "$fresh"; then
    cmp "$golden" "$fresh" || true  # line ends alone
  fi
  if $accept; then
    cp "$fresh" "$golden"
    echo "$golden: accepted"
  else
    cp "$fresh" "$golden.new"
    differing=$((differing + 1))
  fi
done
[ "$differing" = 0 ] || { echo "$differing differ; --accept takes what came out"; exit 1; }
echo "The goldens are what comes out."
