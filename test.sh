#!/usr/bin/env bash
# Builds and tests, installing what is missing.
#
#   ./test.sh            every unit test, every scenario on both platforms, the fuzz targets' corpora
#   ./test.sh FOLDER...  only these folders of tests/
#   ./test.sh --all      also the sanitizers, fuzzing, format, lint, packages, and sessions on a display
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

jobs=$(nproc)
started=$SECONDS
step() { echo "==> $* ($((SECONDS - started)) s)"; }
# On a terminal ninja shows how far it is; elsewhere only what went wrong is of interest.
quiet=(); [ -t 1 ] || quiet=(-- --quiet)

# build PRESET [CMAKE-ARGUMENT...]
build() {
  step "Building (build/$1)"
  cmake --preset "$1" -DTESSEL_TESTS=ON >/dev/null
  cmake --build --preset "$1" -j "$jobs" "${@:2}" "${quiet[@]}"
}
# run_tests PRESET [CTEST-ARGUMENT...]
run_tests() {
  step "Testing (build/$1)"
  ctest --preset "$1" -j "$jobs" --no-tests=error "${@:2}"
}

# Under CI or with a display, the widgets are tested without showing them.
export QT_QPA_PLATFORM=offscreen

usual() {
  install_missing "${build_packages[@]}" "${test_packages[@]}"
  build release
  run_tests release -LE thorough
}

folders() {
  local folder targets=() names
  for folder in "$@"; do
    [ -d "tests/$folder" ] || { echo "./test.sh: there is no folder tests/$folder" >&2; exit 2; }
    targets+=("test_$folder")
  done
  install_missing "${build_packages[@]}" "${test_packages[@]}"
  build release --target "${targets[@]}"
  names=$(IFS='|'; echo "$*")
  run_tests release -R "^($names)\."
}

all() {
  install_missing "${build_packages[@]}" "${test_packages[@]}" "${all_packages[@]}"
  step "Checking the format"
  git ls-files 'src/*.h' 'src/*.cpp' 'tests/*.h' 'tests/*.cpp' 'bench/*.h' 'bench/*.cpp' 'docs/*.cpp' 'examples/*.cpp' |
    xargs clang-format --dry-run --Werror
  build release
  build asan-ubsan
  step "Linting the logic"
  git ls-files 'src/*.cpp' | grep -vE '^src/(qt|automation|embed|designer|host|drive|cli)/' |
    xargs -n 4 -P "$jobs" clang-tidy --quiet --extra-arg=-Wno-unknown-warning-option -p build/asan-ubsan 2>/dev/null
  run_tests asan-ubsan -LE thorough | tail -n 15
  TESSEL_TYPING_KILLS=3 run_tests asan-ubsan -R '^desktop\.'
  build tsan --target test_safekeeping test_lsp
  run_tests tsan -R '^safekeeping\.' -E TakesNoTimeOfTheCaller | tail -n 5
  run_tests tsan -R '^lsp\.ServerProcess' | tail -n 5
  step "Fuzzing, ${FUZZ_SECONDS:=30} s each target"
  scripts/fuzz.sh "$FUZZ_SECONDS"
  TESSEL_KILL_ROUNDS=100 run_tests release
}

case "${1-}" in
  '') usual ;;
  --all) all ;;
  -h|--help) sed -n '2,/^set/{/^# /s/^# *//p}' "$0"; exit 0 ;;
  -*) echo "Usage: ./test.sh [--all | FOLDER...]" >&2; exit 2 ;;
  *) folders "$@" ;;
esac
step "Done"
