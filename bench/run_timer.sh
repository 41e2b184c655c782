#!/bin/sh
# Times the timer on generated flat netlists (sky130hd cells, a flop every
# tenth gate) with one clock and an input or output delay on every port:
# the first report_timing (graph, delays, arrivals, checks: what an update
# does) and a second one after no change, in kelvo and, with -sta, the
# first report_checks of the sta of Debian's opensta package (lumped
# capacitance, the same library's default wire load) over the same files.
# Reading and linking are timed apart. The 1M netlist takes some seconds
# and about a gigabyte in each tool: run it when the machine is quiet.
#   bench/run_timer.sh [-sta] BUILD_DIR [SIZES]
set -e
with_sta=no
if [ "$1" = "-sta" ]; then with_sta=yes; shift; fi
build=${1:?usage: run_timer.sh [-sta] BUILD_DIR [SIZES]}
sizes=${2:-"10000 100000"}
width=16
. "$(dirname "$0")/common.sh"
work=$bench_work
script=${TMPDIR:-/tmp}/kelvo_bench_timer.tcl
sdc=$work/timer_$width.sdc
# Plain text: this sta does not read gzipped Liberty.
lib=$(bench_plain_library)
{
  echo "create_clock -name clk -period 10 [get_ports clk]"
  echo "set_input_delay 1.5 -clock clk [get_ports in*]"
  echo "set_output_delay 2.25 -clock clk [get_ports out*]"
} >"$sdc"

for n in $sizes; do
  f=$(bench_netlist flat "$n" "$width")
  cat >"$script.kelvo" <<TCL
read_liberty $lib
set us [lindex [time {read_verilog $f; link_design top; read_sdc $sdc}] 0]
puts [format "kelvo %8d  read+link+sdc  %8.3f s" $n [expr {\$us / 1e6}]]
set us [lindex [time {report_timing -path_type summary > /dev/null}] 0]
puts [format "kelvo %8d  first report  %8.3f s" $n [expr {\$us / 1e6}]]
set us [lindex [time {report_timing -path_type summary > /dev/null}] 0]
puts [format "kelvo %8d  second report %8.3f s" $n [expr {\$us / 1e6}]]
report_constraint -max_delay -min_delay
TCL
  "$build/kelvo" "$script.kelvo"
  if [ $with_sta = yes ]; then
    cat >"$script.sta" <<TCL
read_liberty $lib
set us [lindex [time {read_verilog $f; link_design top; read_sdc $sdc}] 0]
puts [format "sta   %8d  read+link+sdc  %8.3f s" $n [expr {\$us / 1e6}]]
set_wire_load_model -name Small
set_delay_calculator lumped_cap
set us [lindex [time {report_checks -format end > /dev/null}] 0]
puts [format "sta   %8d  first report  %8.3f s" $n [expr {\$us / 1e6}]]
set us [lindex [time {report_checks -format end > /dev/null}] 0]
puts [format "sta   %8d  second report %8.3f s" $n [expr {\$us / 1e6}]]
report_wns -digits 2
report_tns -digits 2
report_checks -path_delay min -format end -digits 2
exit
TCL
    sta -no_init -no_splash "$script.sta"
  fi
done
