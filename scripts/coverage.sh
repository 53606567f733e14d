#!/usr/bin/env bash
# Measures which lines of src/ the tests run: everything but the widgets of qt/. Prints for each file
# the share and the lines that no test runs. COVERAGE_GOAL=98 makes it fail below that.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
install_missing "${build_packages[@]}" "${test_packages[@]}" gcovr

build=build/coverage
jobs=${COVERAGE_JOBS:-$(nproc)}
# Tests work in children that end without writing their counts by themselves, and as other users, who
# have to be able to reach this directory.
umask 000
export QT_QPA_PLATFORM=offscreen
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O0 -g1 --coverage" \
  -DCMAKE_EXE_LINKER_FLAGS=-Wl,-u,__gcov_dump -DTESSEL_TESTS=ON >/dev/null
cmake --build "$build" -j "$jobs" | tail -n 1
find "$build" -name '*.gcda' -delete
chmod -R a+rwX "$build"
# Programs without rights cannot write their counts, and say so where a test compares what is said; those
# without room would tear the counts of all others.
ctest --test-dir "$build" -j "$jobs" --no-tests=error -E '^cli.*DiskIsFull' | tail -n 8 || true
exec gcovr --root . -j "$jobs" --filter src/ --exclude src/qt/ --fail-under-line "${COVERAGE_GOAL:-0}" "$build"
