#!/usr/bin/env bash
# Builds the libFuzzer harnesses (clang, with the address and
# undefined-behaviour sanitizers) in build-fuzz/ and runs each for SECONDS.
#   scripts/fuzz.sh [SECONDS] [liberty|verilog|loader|sdc|spef|saif|vcd ...]
# SECONDS defaults to 60 (the smoke run of CI); all harnesses when none is
# named. A long run: scripts/fuzz.sh 3600 liberty (nice it on a shared
# machine). With FUZZ_KEEP_GOING=1 a harness goes on after a finding.
# The corpus grows in build-fuzz/corpus/NAME, from the seeds that
# tests/fuzz/NAME.seeds lists. Whatever crashes, leaks, times out or runs
# out of memory is copied into tests/fuzz/regressions/NAME/, which the unit
# suite reads; the script then fails.
set -euo pipefail
cd "$(dirname "$0")/.."
KELVO_FUZZ=1 ./scripts/setup.sh

seconds=${1:-60}
if [ $# -gt 0 ]; then shift; fi
harnesses=("$@")
if [ ${#harnesses[@]} -eq 0 ]; then harnesses=(liberty verilog loader sdc spef saif vcd); fi

launcher=()
if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
  -DKELVO_FUZZ=ON -DKELVO_BUILD_TESTS=OFF -DKELVO_BUILD_BENCH=OFF "${launcher[@]}" >/dev/null
cmake --build build-fuzz -j"$(nproc)" --target "${harnesses[@]/#/fuzz_}"

# FUZZ_SEED fixes libFuzzer's seed (CI sets it, so that a run it makes is
# the same run each time); unset or 0, a new seed each run.
options=(-seed="${FUZZ_SEED:-0}" -max_total_time="$seconds" -max_len=65536 -timeout=20 -rss_limit_mb=2048
  -print_final_stats=1 -close_fd_mask=1)
if [ "${FUZZ_KEEP_GOING:-0}" = 1 ]; then
  options+=(-fork=1 -ignore_crashes=1 -ignore_timeouts=1 -ignore_ooms=1)
fi
# libFuzzer checks each input for leaks itself. The sanitizer's own check at
# exit would walk every chunk an hour of inputs left in the allocator's free
# lists (25 million once): minutes, gigabytes, and an out-of-memory report
# after the run is done.
export ASAN_OPTIONS="${ASAN_OPTIONS:+$ASAN_OPTIONS:}leak_check_at_exit=0"
status=0
for name in "${harnesses[@]}"; do
  corpus=build-fuzz/corpus/$name
  artifacts=build-fuzz/artifacts/$name
  mkdir -p "$corpus" "$artifacts" "tests/fuzz/regressions/$name"
  grep -v '^#' "tests/fuzz/$name.seeds" | while read -r seed; do
    cp "tests/data/$seed" "$corpus/seed_$(basename "$seed")"
  done
  echo "fuzz: $name for ${seconds}s"
  if ! "build-fuzz/fuzz_$name" "${options[@]}" -artifact_prefix="$artifacts/" "$corpus" \
    2>"build-fuzz/fuzz_$name.log"; then
    status=1
  fi
  tail -n 12 "build-fuzz/fuzz_$name.log" | grep -E '^(stat::|==|SUMMARY|Done)' || true
  for found in "$artifacts"/*; do
    [ -e "$found" ] || continue
    cp "$found" "tests/fuzz/regressions/$name/"
    echo "fuzz: $name found $(basename "$found"), kept in tests/fuzz/regressions/$name/"
    rm "$found"
    status=1
  done
done
exit $status
