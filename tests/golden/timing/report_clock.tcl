# report_clock: a propagated clock with a waveform of its own, a virtual
# clock, a generated clock dividing clk at r1/Q and one inverting it at
# r2/Q, with uncertainty, latencies (rise and fall apart, min and max apart)
# and a transition; then digits out of range.
source ../golden/timing/timer_setup.tcl
create_clock -name clk -period 2 -waveform {0 0.8} [get_ports clk]
set_propagated_clock [get_clocks clk]
create_clock -name vclk -period 4
create_generated_clock -name div2 -source [get_ports clk] -divide_by 2 [get_pins r1/Q]
create_generated_clock -name inv -source [get_ports clk] -edges {2 3 4} [get_pins r2/Q]
set_clock_uncertainty -setup 0.1 [get_clocks clk]
set_clock_uncertainty -hold 0.05 [get_clocks clk]
set_clock_latency -source 0.3 [get_clocks clk]
set_clock_latency -rise 0.2 [get_clocks vclk]
set_clock_latency -fall 0.25 [get_clocks vclk]
set_clock_latency -min 0.1 [get_clocks div2]
set_clock_latency -max 0.15 [get_clocks div2]
set_clock_transition 0.04 [get_clocks vclk]
report_clock
report_clock -significant_digits 3
puts [catch {report_clock -significant_digits -1} message]
puts $message
