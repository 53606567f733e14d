#!/usr/bin/env bash
# Runs the fuzz targets on their corpora: scripts/fuzz.sh SECONDS [TARGET...]
# Each target runs for that long, two at a time. An input that breaks a rule is kept under
# build/fuzz/findings/TARGET and makes this fail. FUZZ_KEEP=1 goes on with what earlier runs found.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

case "${1-}" in
  ''|*[!0-9]*) echo "Usage: scripts/fuzz.sh SECONDS [TARGET...]" >&2; exit 2 ;;
esac
seconds=$1; shift
all=(Script TextRules Colouring Converter Defines Levels Words SettingsStore SafeText Drive CommandLine)
targets=("${@:-${all[@]}}")
for target in "${targets[@]}"; do
  [ -d "tests/fuzz/corpus/$target" ] || { echo "scripts/fuzz.sh: no target $target; there are ${all[*]}" >&2; exit 2; }
done

install_missing "${build_packages[@]}" "${test_packages[@]}" "${all_packages[@]}"
cmake --preset asan-ubsan -DTESSEL_TESTS=ON >/dev/null
cmake --build --preset fuzz -j "${FUZZ_JOBS:-$(nproc)}" | tail -n 1

# In memory, where there is such a place: two targets make files for every input.
[ -w /dev/shm ] && export TMPDIR=/dev/shm

# What is new to the corpus stays in the build directory: the corpus in the sources is chosen by hand.
run_target() {
  local target=$1 seconds=$2 options=()
  local grown=build/fuzz/corpus/$target findings=build/fuzz/findings/$target log=build/fuzz/$target.log
  [ "${FUZZ_KEEP-}" = 1 ] || rm -rf "$grown"
  mkdir -p "$grown" "$findings"
  # Where an input reaches thousands of edges, weighing them takes longer than running it.
  case $target in Drive|CommandLine) options+=(-entropic=0) ;; esac
  [ -f "tests/fuzz/$target.dict" ] && options+=("-dict=tests/fuzz/$target.dict")
  if build/asan-ubsan/tests/fuzz/fuzz_"$target" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=2048 \
      -max_len=8192 -print_final_stats=1 -artifact_prefix="$findings/" "${options[@]}" \
      "$grown" "tests/fuzz/corpus/$target" >"$log" 2>&1; then
    awk -v target="$target" '
      /stat::number_of_executed_units/ { units = $2 }
      /^Done/ { seconds = $5 }
      / cov: / { for (i = 1; i < NF; ++i) if ($i == "cov:") edges = $(i + 1) }
      END { printf "%-14s %10d executions in %4d s, %5d edges, no findings\n", target, units, seconds, edges }' "$log"
  else
    tail -n 40 "$log" >&2
    echo "$target: FAILED; the input is in $findings, the whole output in $log" >&2
    return 1
  fi
}
export -f run_target
printf '%s\n' "${targets[@]}" | xargs -P 2 -I{} bash -c 'run_target "$@"' run_target {} "$seconds"
