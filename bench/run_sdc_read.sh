#!/bin/sh
# Times read_sdc of a constraint file that sets an input delay and a driving
# cell on every input port and an output delay and a load on every output
# port (4 commands a bus bit, with buses of 1024 bits: 4097 commands) of
# generated flat netlists, in kelvo and, with -sta, in the sta of Debian's
# opensta package over the same files. Reading and linking are timed apart.
# Then times constraint look-ups by port and pin on the same netlists
# (kelvo_bench_sdc_lookup). Each size runs once: the 1M netlist takes some
# seconds and memory.
#   bench/run_sdc_read.sh [-sta] BUILD_DIR [SIZES]
set -e
with_sta=no
if [ "$1" = "-sta" ]; then with_sta=yes; shift; fi
build=${1:?usage: run_sdc_read.sh [-sta] BUILD_DIR [SIZES]}
sizes=${2:-"10000 1000000"}
width=1024
. "$(dirname "$0")/common.sh"
work=$bench_work
script=${TMPDIR:-/tmp}/kelvo_bench_sdc_read.tcl
sdc=$work/ports_$width.sdc
# Plain text: this sta does not read gzipped Liberty.
lib=$(bench_plain_library)

# The constraints, as a tool writes them: one command a port and setting.
{
  echo "create_clock -name clk -period 10 [get_ports clk]"
  i=0
  while [ $i -lt $width ]; do
    echo "set_input_delay 1.5 -clock clk [get_ports {in[$i]}]"
    echo "set_driving_cell -lib_cell sky130_fd_sc_hd__inv_2 -pin Y [get_ports {in[$i]}]"
    echo "set_output_delay 2.25 -clock clk [get_ports {out[$i]}]"
    echo "set_load 0.0125 [get_ports {out[$i]}]"
    i=$((i + 1))
  done
} >"$sdc"

for n in $sizes; do
  f=$(bench_netlist flat "$n" "$width")
  cat >"$script" <<TCL
read_liberty $lib
set us [lindex [time {read_verilog $f; link_design top}] 0]
puts [format "%-6s %8d  read+link %8.3f s" \$tool $n [expr {\$us / 1e6}]]
set us [lindex [time {read_sdc $sdc}] 0]
puts [format "%-6s %8d  read_sdc  %8.3f s  (%d ports)" \$tool $n [expr {\$us / 1e6}] \
    [llength [get_ports *]]]
TCL
  (echo "set tool kelvo"; cat "$script") >"$script.kelvo"
  "$build/kelvo" "$script.kelvo"
  if [ $with_sta = yes ]; then
    (echo "set tool sta"; cat "$script"; echo exit) >"$script.sta"
    sta -no_init -no_splash "$script.sta"
  fi
  "$build/kelvo_bench_sdc_lookup" -lib "$lib" "$f"
done
