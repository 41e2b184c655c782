# set_switching_activity in its forms and report_switching_activity over
# activity_gates.v: defaults of 0.1 toggles per period of the fastest clock
# and probability 0.5 at the inputs, then rates per time unit, per clock
# period and per -period, on nets, ports and pins, and the refusals.
# The XOR: 1e7 x 0.25 x 0.25 + 1e7 x 0.75 x 0.75 = 6.25e6 a second by
# default, then 3e7 x 0.1 x 0.3 + 8.5e7 x 0.9 x 0.7 = 5.445e7; n_inv and
# the register take its figures, whatever the clock.
read_liberty activity_small.lib
read_verilog activity_gates.v
link_design activity_gates
create_clock -name clk -period 10 [get_ports clk]
report_switching_activity [get_nets *]
# 1 per 10 ns; 0.2 per clock period; 0.05 per ns through u_or/B's net.
set_switching_activity -toggle_rate 1 -static_probability 0.5 -period 10 a
set_switching_activity -toggle_rate 0.2 -static_probability 0.2 -base_clock clk [get_ports b]
set_switching_activity -toggle_rate 0.05 -static_probability 0.4 [get_pins u_or/B]
report_switching_activity [get_nets *]
# Register outputs forced (their probability stays worked out); the inputs
# are all named above, so the new input default changes none of them.
set_switching_activity -type registers -toggle_rate 0.01
set_switching_activity -type inputs -toggle_rate 0.3 -static_probability 0.25
report_switching_activity [get_nets {q qn}]
foreach bad {
  {set_switching_activity -type foo -static_probability 0.25}
  {set_switching_activity -static_probability 1.5 a}
  {set_switching_activity -toggle_rate -1 a}
  {set_switching_activity -toggle_rate 1 -period 2 -base_clock clk a}
  {set_switching_activity -base_clock clk a}
  {set_switching_activity a}
  {set_switching_activity -toggle_rate 1}
  {set_switching_activity -toggle_rate 1 -base_clock nosuch a}
  {set_switching_activity -toggle_rate 1 -period 0 a}
} {
  if {[catch $bad message]} { puts $message } else { puts "NOT REFUSED: $bad" }
}
# An unknown name is a warning; the command goes on with the others.
set_switching_activity -toggle_rate 0.5 {nosuch c}
report_switching_activity [get_nets c]
