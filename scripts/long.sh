#!/usr/bin/env bash
# What takes too long for "./test.sh --all": scripts/long.sh [kills] [memory] [texts] [fuzz] [packages] [mutants]
# Without arguments all six, in this order. ROUNDS (kills of each kind), TYPING_ROUNDS (kills of the window),
# FUZZ_SECONDS (for each target) and MUTANTS ask for less or more:
# ROUNDS=2 TYPING_ROUNDS=2 FUZZ_SECONDS=2 MUTANTS=2 scripts/long.sh tries it out.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
: "${ROUNDS:=1000}" "${TYPING_ROUNDS:=100}" "${MEMORY_STEPS:=7}" "${TEXTS:=100000}" "${FUZZ_SECONDS:=600}" "${MUTANTS:=200}"

jobs=$(nproc)
export QT_QPA_PLATFORM=offscreen
step() { echo "==> $* ($SECONDS s)"; }

kills() {
  step "Killing $ROUNDS times each"
  cmake --preset release -DTESSEL_TESTS=ON >/dev/null
  cmake --build --preset release -j "$jobs" --target test_faults zanth-manager -- --quiet
  TESSEL_KILL_ROUNDS=$ROUNDS build/release/tests/test_faults --gtest_filter='KillTest.*'
  step "Killing the window $TYPING_ROUNDS times while a person types"
  TESSEL_TYPING_KILLS=$TYPING_ROUNDS tests/desktop/killed-typing-session.sh "$PWD/build/release/src/host/zanth-manager" "$PWD/data"
}

memory() {
  step "Refusing memory to the window, $MEMORY_STEPS times as densely as usual"
  cmake --preset release -DTESSEL_TESTS=ON >/dev/null
  cmake --build --preset release -j "$jobs" --target test_host -- --quiet
  TESSEL_MEMORY_STEPS=$((2 * MEMORY_STEPS)) build/release/tests/test_host --gtest_filter='*WindowWithoutMemory*'
}

# In memory: a disk would need hours to flush them all.
texts() {
  step "Trying $TEXTS texts of any bytes"
  cmake --preset release -DTESSEL_TESTS=ON >/dev/null
  cmake --build --preset release -j "$jobs" --target test_faults test_qt -- --quiet
  TESSEL_TEXTS=$TEXTS TMPDIR=/dev/shm build/release/tests/test_faults --gtest_filter='AnyBytes.*'
  TESSEL_TEXTS=$TEXTS build/release/tests/test_qt --gtest_filter='ScintillaViewKeeps.*'
}

fuzz() {
  step "Fuzzing $FUZZ_SECONDS s each target"
  scripts/fuzz.sh "$FUZZ_SECONDS"
}

# The folders differ also in the length of their names, and no cache of the compiler's helps.
# All but what says when and where it was built, which names the sums of these.
packages() {
  local first=build/packages-one second=build/packages-another-time file
  step "Building the packages twice"
  CCACHE_DISABLE=1 scripts/build-packages.sh "$first"
  CCACHE_DISABLE=1 scripts/build-packages.sh "$second"
  diff <(ls "$first") <(ls "$second")
  for file in "$first"/*.deb "$first"/*.dsc "$first"/*.tar.xz; do
    cmp "$file" "$second/$(basename "$file")"
    echo "$(basename "$file"): equal"
  done
}

mutants() {
  step "Trying $MUTANTS mutants"
  scripts/mutate.py "$MUTANTS" "${SEED:-1}"
}

for part in "$@"; do
  case $part in
    kills|memory|texts|fuzz|packages|mutants) ;;
    *) echo "Usage: scripts/long.sh [kills] [memory] [texts] [fuzz] [packages] [mutants]" >&2; exit 2 ;;
  esac
done
[ $# -gt 0 ] || set -- kills memory texts fuzz packages mutants
install_missing "${build_packages[@]}" "${test_packages[@]}" "${all_packages[@]}"
for part in "$@"; do "$part"; done
step "Done"
