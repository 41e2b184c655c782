#!/bin/sh
# Generates flat and hierarchical netlists of 10k, 100k and 1M instances
# and reads and links each against sky130hd.
# Usage: bench/run_read_link.sh BUILD_DIR [SIZES]
set -e
build=${1:?usage: run_read_link.sh BUILD_DIR [SIZES]}
sizes=${2:-"10000 100000 1000000"}
work=${TMPDIR:-/tmp}/kelvo_bench_netlists
mkdir -p "$work"
files=""
for n in $sizes; do
  for kind in flat hier; do
    f="$work/${kind}_$n.v"
    [ -f "$f" ] || "$build/kelvo_gen_netlist" "$kind" "$n" "$f"
    files="$files $f"
  done
done
lib=$(dirname "$0")/../tests/data/sky130hd_tt.lib.gz
"$build/kelvo_bench_read_link" -lib "$lib" $files
