# Numbers the store cannot keep make a command malformed, and it changes
# nothing: not a number, infinite, too large for the units in force, a
# period too short to keep; negative transitions and fanout loads; a path
# multiplier that is no whole number of cycles. A negative load is kept,
# with a warning.
source ../golden/sdc/show_sdc.tcl
create_clock -name clk -period 10 [get_ports clk]
foreach command {
  {set_load nan out1}
  {set_input_delay inf -clock clk in1}
  {set_load 1e39 out1}
  {create_clock -name fast -period 1e-40}
  {create_clock -name odd -period 10 -waveform {0 -nan}}
  {set_clock_transition -0.1 [get_clocks clk]}
  {set_fanout_load -2 out2}
  {set_multicycle_path 1.5 -to out1}
  {set_multicycle_path -1 -hold -to out1}
} {
  if {[catch $command message]} { puts $message }
}
set_load -min -rise -0.5 out1
set_load -0.01 [get_nets w1]
set_load -1 [get_ports -quiet none]
set_multicycle_path 2.0 -to out1
show_sdc
