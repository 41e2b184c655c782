# Bad SAIF and VCD files, each refused with its file (and line), with every
# net's activity as it was.
source bad/refused.tcl
read_liberty activity_small.lib
read_verilog activity_gates.v
link_design activity_gates
create_clock -name clk -period 10 [get_ports clk]
set_switching_activity -toggle_rate 0.5 -static_probability 0.3 a
proc activity {} {
  redirect -variable text { report_switching_activity [get_nets *] }
  return $text
}
set before [activity]
refused {read_saif bad/no_such.saif}
refused {read_saif bad}
refused {read_saif bad/a_number.saif -instance top}
refused {read_saif bad/a_number.saif -instance nowhere}
refused {read_vcd bad/a_unknown_id.vcd -scope top}
refused {read_vcd bad/a_truncated.vcd.gz}
refused {read_vcd}
if {[activity] ne $before} { puts "ACTIVITY CHANGED" }
puts [lindex [split $before "\n"] 0]
