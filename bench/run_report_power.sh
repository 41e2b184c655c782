#!/bin/sh
# Times report_power on generated flat netlists (10k, 100k and 1M instances
# over sky130hd cells, every tenth a flop on the clock clk of 5 ns): the
# first call brings timing and activity up to date and is shown apart;
# then the group table alone, and with -cell (every instance's row). Report
# text goes to /dev/null. Each line shows wall and processor time.
#   bench/run_report_power.sh BUILD_DIR [SIZES]
set -e
build=${1:?usage: run_report_power.sh BUILD_DIR [SIZES]}
sizes=${2:-"10000 100000 1000000"}
. "$(dirname "$0")/common.sh"
lib=$bench_lib
script=${TMPDIR:-/tmp}/kelvo_bench_report_power.tcl
for n in $sizes; do
  f=$(bench_netlist flat "$n")
  cat >"$script" <<TCL
read_liberty $lib
read_verilog $f
link_design
create_clock -period 5 [get_ports clk]
# Processor time of this process (user + system), in seconds.
proc cpu {} {
  set f [open /proc/self/stat]
  set fields [split [lindex [split [read \$f] ")"] end]]
  close \$f
  return [expr {([lindex \$fields 12] + [lindex \$fields 13]) / 100.0}]
}
proc timed {label body} {
  set c [cpu]
  set us [lindex [time {uplevel 1 \$body}] 0]
  puts [format "%8d  %-40s %8.3f s wall %8.2f s cpu" $n \$label [expr {\$us / 1e6}] \
      [expr {[cpu] - \$c}]]
}
timed "report_power (timing and activity update)" {redirect /dev/null {report_power}}
timed "report_power" {redirect /dev/null {report_power}}
timed "report_power -cell" {redirect /dev/null {report_power -cell}}
TCL
  "$build/kelvo" "$script" 2>/dev/null
done
