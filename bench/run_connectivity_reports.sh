#!/bin/sh
# Times the connectivity reports (report_net, report_net_fanout,
# report_buffer_tree, get_fanin_pins, get_fanout_pins) on generated flat
# netlists of 10k, 100k and 1M instances over sky130hd cells. Every tenth
# instance is a flop on the net clk, so clk has a tenth of the instances as
# loads (100,000 at 1M). A second netlist of each size drives those clock
# pins through a buffer tree of fan-out 10 (clk -> root buffer -> ... ->
# leaf buffers -> 10 flops each), for -tree and report_buffer_tree through
# buffers. Report text goes to /dev/null; only the figures are printed.
# The first report_net brings timing up to date (graph, levels, slews): its
# time is shown apart. Each line shows wall time and processor time (user
# and system, in steps of 10 ms).
# With -sta, the sta of Debian's opensta package times its report_net over
# the flat netlists beside ours: it takes one net a command, so it runs in
# a loop over every net, under the library's default wire-load model.
#   bench/run_connectivity_reports.sh [-sta] BUILD_DIR [SIZES]
set -e
with_sta=no
if [ "$1" = "-sta" ]; then with_sta=yes; shift; fi
build=${1:?usage: run_connectivity_reports.sh [-sta] BUILD_DIR [SIZES]}
sizes=${2:-"10000 100000 1000000"}
. "$(dirname "$0")/common.sh"
lib=$bench_lib
work=$bench_work
script=${TMPDIR:-/tmp}/kelvo_bench_connectivity.tcl

# The flat netlist with the flops' clock pins moved onto leaf nets of a
# buffer tree of fan-out 10.
buffer_clock() {
  awk '
    /\.CLK\(clk\)/ { sub(/\.CLK\(clk\)/, ".CLK(ck0_" int(flops / 10) ")"); flops++ }
    /^endmodule/ {
      level = 0; count = int((flops + 9) / 10)
      while (1) {
        for (i = 0; i < count; i++) print "  wire ck" level "_" i ";"
        up = int((count + 9) / 10)
        for (i = 0; i < count; i++) {
          from = (count == 1) ? "clk" : "ck" (level + 1) "_" int(i / 10)
          print "  sky130_fd_sc_hd__buf_1 cb" level "_" i " (.A(" from "), .X(ck" level "_" i "));"
        }
        if (count == 1) break
        count = up; level++
      }
    }
    { print }' "$1" >"$2"
}

for n in $sizes; do
  flat=$(bench_netlist flat "$n")
  tree="$work/flat_ctree_$n.v"
  [ -f "$tree" ] || buffer_clock "$flat" "$tree"
  for f in "$flat" "$tree"; do
    kind=flat
    [ "$f" = "$tree" ] && kind=ctree
    cat >"$script" <<TCL
read_liberty $lib
read_verilog $f
link_design
# Processor time of this process (user + system), in seconds: the machine
# is shared, so wall time alone says little.
proc cpu {} {
  set f [open /proc/self/stat]
  set fields [split [lindex [split [read \$f] ")"] end]]
  close \$f
  return [expr {([lindex \$fields 12] + [lindex \$fields 13]) / 100.0}]
}
proc timed {label body} {
  set c [cpu]
  set us [lindex [time {uplevel 1 \$body}] 0]
  puts [format "%-5s %8d  %-36s %8.3f s wall %8.2f s cpu" $kind $n \$label [expr {\$us / 1e6}] \
      [expr {[cpu] - \$c}]]
}
timed "report_net n0 (timing update)" {redirect /dev/null {report_net n0}}
timed "report_net" {redirect /dev/null {report_net}}
timed "report_net -connections" {redirect /dev/null {report_net -connections}}
timed "report_net -transition_times" {redirect /dev/null {report_net -transition_times}}
timed "report_net_fanout" {redirect /dev/null {report_net_fanout}}
timed "report_net_fanout -high_fanout" {redirect /dev/null {report_net_fanout -high_fanout}}
timed "report_net_fanout -tree" {redirect /dev/null {report_net_fanout -tree}}
timed "report_buffer_tree -net clk" {redirect /dev/null {report_buffer_tree -net clk}}
timed "get_fanout_pins -level 3 clk" {redirect /dev/null {get_fanout_pins -level 3 clk}}
timed "get_fanin_pins -level 10 out\[0\]" {redirect /dev/null {get_fanin_pins -level 10 {out[0]}}}
TCL
    "$build/kelvo" "$script" 2>/dev/null
  done
  if [ $with_sta = yes ]; then
    # Plain text: this sta does not read gzipped Liberty.
    plain=$(bench_plain_library)
    cat >"$script.sta" <<TCL
read_liberty $plain
read_verilog $flat
link_design top
set_wire_load_model -name Small
proc cpu {} {
  set f [open /proc/self/stat]
  set fields [split [lindex [split [read \$f] ")"] end]]
  close \$f
  return [expr {([lindex \$fields 12] + [lindex \$fields 13]) / 100.0}]
}
proc timed {label body} {
  set c [cpu]
  set us [lindex [time {uplevel 1 \$body}] 0]
  puts [format "%-5s %8d  %-36s %8.3f s wall %8.2f s cpu" sta $n \$label [expr {\$us / 1e6}] \
      [expr {[cpu] - \$c}]]
}
set nets {}
foreach net [get_nets *] { lappend nets [get_full_name \$net] }
timed "report_net (per net)" {
  sta::redirect_file_begin /dev/null
  foreach net \$nets { report_net \$net }
  sta::redirect_file_end
}
timed "report_net -connections (per net)" {
  sta::redirect_file_begin /dev/null
  foreach net \$nets { report_net -connections \$net }
  sta::redirect_file_end
}
exit
TCL
    sta -no_init -no_splash "$script.sta"
  fi
done
