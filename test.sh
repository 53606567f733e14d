#!/usr/bin/env bash
# Builds and runs every test, installing what is missing: the tests themselves, once more under the
# sanitizers, a short run of every fuzz target, and the checks of format and lint.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

install_missing "${build_packages[@]}" "${test_packages[@]}" "${fuzz_packages[@]}"
jobs=$(nproc)
started=$SECONDS
step() { echo "==> $* ($((SECONDS - started)) s)"; }

# Under CI or with a display, the widgets are tested without showing them.
export QT_QPA_PLATFORM=offscreen

step "Checking the format"
git ls-files 'src/*.h' 'src/*.cpp' 'tests/*.h' 'tests/*.cpp' 'bench/*.h' 'bench/*.cpp' 'docs/*.cpp' 'examples/*.cpp' |
  xargs clang-format --dry-run --Werror

step "Building (build/release)"
cmake --preset release -DTESSEL_TESTS=ON >/dev/null
cmake --build --preset release -j "$jobs" | tail -n 1

step "Building with sanitizers (build/asan-ubsan)"
cmake --preset asan-ubsan -DTESSEL_TESTS=ON >/dev/null
cmake --build --preset asan-ubsan -j "$jobs" | tail -n 1

step "Linting the logic"
git ls-files 'src/*.cpp' | grep -vE '^src/(qt|automation|embed|designer|host|drive|cli)/' |
  xargs -n 4 -P "$jobs" clang-tidy --quiet --extra-arg=-Wno-unknown-warning-option -p build/asan-ubsan 2>/dev/null

step "Testing under the sanitizers"
ctest --preset asan-ubsan -j "$jobs" --output-on-failure --no-tests=error | tail -n 15

step "Fuzzing (build/fuzz), ${FUZZ_SECONDS:=60} s each target"
scripts/fuzz.sh "$FUZZ_SECONDS"

step "Testing"
ctest --preset release -j "$jobs" --output-on-failure --no-tests=error
step "Done"
