#!/bin/sh
# Generates netlists of several shapes and sizes and reads and links each
# against sky130hd, one process per netlist so that each peak is its own.
# Shapes: flat, hier (100-gate leaves, 10 to a middle block), modules (a
# thousand distinct 1000-gate modules), reused (one 1000-gate module used a
# thousand times), bignet (one net of INSTANCES-1 loads, whose every pin is
# asked its driver and fan-in). Three more, not run unless named, are
# corners where reading or linking once grew faster than the netlist or
# took far more memory: ports (a top with INSTANCES scalar header ports),
# tiny (INSTANCES modules of one gate each) and tree (a binary hierarchy
# over INSTANCES inverters, to set beside flat):
# bench/run_read_link.sh build "20000 40000 80000" "ports tiny tree".
# Usage: bench/run_read_link.sh BUILD_DIR [SIZES] [SHAPES]
set -e
build=${1:?usage: run_read_link.sh BUILD_DIR [SIZES] [SHAPES]}
sizes=${2:-"10000 100000 1000000"}
shapes=${3:-"flat hier modules reused bignet"}
. "$(dirname "$0")/common.sh"
lib=$bench_lib
for n in $sizes; do
  for kind in $shapes; do
    f=$(bench_netlist "$kind" "$n")
    if [ "$kind" = bignet ]; then
      "$build/kelvo_bench_read_link" -lib "$lib" -net big "$f"
    else
      "$build/kelvo_bench_read_link" -lib "$lib" "$f"
    fi
  done
done
