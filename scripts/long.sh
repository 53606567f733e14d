#!/usr/bin/env bash
# What takes too long for "./test.sh --all": scripts/long.sh [kills] [fuzz] [packages] [mutants]
# Without arguments all four, in this order. ROUNDS (kills of each kind), TYPING_ROUNDS (kills of the window),
# FUZZ_SECONDS (for each target) and MUTANTS ask for less or more:
# ROUNDS=2 TYPING_ROUNDS=2 FUZZ_SECONDS=2 MUTANTS=2 scripts/long.sh tries it out.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
: "${ROUNDS:=1000}" "${TYPING_ROUNDS:=100}" "${FUZZ_SECONDS:=600}" "${MUTANTS:=200}"

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

fuzz() {
  step "Fuzzing $FUZZ_SECONDS s each target"
  scripts/fuzz.sh "$FUZZ_SECONDS"
}

# make_packages DIRECTORY: from nothing, with no cache of the compiler's; they are left in the directory.
make_packages() {
  rm -rf build/packages "$1"
  CCACHE_DISABLE=1 cmake --preset release -B build/packages -DTESSEL_TESTS=OFF >/dev/null
  CCACHE_DISABLE=1 cmake --build build/packages -j "$jobs" -- --quiet
  mkdir -p "$1"
  (cd build/packages && cpack -G DEB >cpack.log) || { cat build/packages/cpack.log >&2; return 1; }
  mv build/packages/*.deb "$1"
}

packages() {
  local package
  SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
  export SOURCE_DATE_EPOCH
  step "Building the packages twice"
  make_packages build/packages-one
  make_packages build/packages-two
  for package in build/packages-one/*.deb; do
    cmp "$package" "build/packages-two/$(basename "$package")"
    echo "$(basename "$package"): equal"
  done
}

mutants() {
  step "Trying $MUTANTS mutants"
  scripts/mutate.py "$MUTANTS" "${SEED:-1}"
}

for part in "$@"; do
  case $part in
    kills|fuzz|packages|mutants) ;;
    *) echo "Usage: scripts/long.sh [kills] [fuzz] [packages] [mutants]" >&2; exit 2 ;;
  esac
done
[ $# -gt 0 ] || set -- kills fuzz packages mutants
install_missing "${build_packages[@]}" "${test_packages[@]}" "${all_packages[@]}"
for part in "$@"; do "$part"; done
step "Done"
