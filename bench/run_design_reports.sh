#!/bin/sh
# Times the design reports (report_area, report_reference, report_hierarchy,
# report_cell, report_bus) on generated netlists of 10k, 100k and 1M
# instances, flat and hierarchical. Report text goes to a file so that only
# the figures reach the terminal.
#   bench/run_design_reports.sh BUILD_DIR [SIZES]
set -e
build=${1:?usage: run_design_reports.sh BUILD_DIR [SIZES]}
sizes=${2:-"10000 100000 1000000"}
. "$(dirname "$0")/common.sh"
lib=$bench_lib
out=${TMPDIR:-/tmp}/kelvo_bench_design_reports.txt
script=${TMPDIR:-/tmp}/kelvo_bench_design_reports.tcl
for n in $sizes; do
  for kind in flat hier; do
    f=$(bench_netlist "$kind" "$n")
    cat >"$script" <<TCL
read_liberty $lib
set us [lindex [time {read_verilog $f; link_design}] 0]
puts [format "%-5s %8d  read+link          %8.3f s" $kind $n [expr {\$us / 1e6}]]
foreach cmd {report_area {report_area -hierarchy -verbose} report_reference
             {report_reference -hierarchy} report_hierarchy report_bus report_cell} {
  set us [lindex [time {redirect $out \$cmd}] 0]
  puts [format "%-5s %8d  %-30s %8.3f s  %10d bytes" $kind $n \$cmd [expr {\$us / 1e6}] \
      [file size $out]]
}
TCL
    "$build/kelvo" "$script" 2>/dev/null
  done
done
