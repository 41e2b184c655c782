# Clocks: create_clock with and without a waveform, a virtual clock, a
# redefinition, -add, generated clocks by division, multiplication, edges
# and inversion, and the clock attributes.
source ../golden/sdc/show_sdc.tcl
create_clock -period 10 [get_ports clk]
create_clock -name vclk -period 4 -waveform {1 3}
create_clock -name other -period 20 [get_ports in1]
create_clock -name other2 -period 8 -add [get_ports in1]
create_generated_clock -name div2 -source [get_ports clk] -divide_by 2 [get_pins r1/Q]
create_generated_clock -name mul2 -source [get_ports clk] -multiply_by 2 -invert [get_pins r2/Q]
create_generated_clock -name edged -source [get_ports clk] -edges {1 3 5} -edge_shift {0 1 0} [get_pins u_ckbuf/Z]
# Redefining keeps the clock object: its new period is taken.
create_clock -name vclk -period 5
set_clock_uncertainty 0.2 [get_clocks clk]
set_clock_uncertainty -hold 0.05 [get_clocks clk]
set_clock_uncertainty -setup 0.1 -from [get_clocks clk] -to [get_clocks vclk]
set_clock_latency -source 1.5 [get_clocks clk]
set_clock_latency -max 0.4 [get_clocks clk]
set_clock_latency -min 0.3 [get_clocks clk]
set_clock_latency -fall -early 0.2 -source [get_clocks vclk]
set_clock_transition -rise 0.05 [get_clocks clk]
set_clock_transition -fall 0.06 [get_clocks clk]
set_propagated_clock [get_clocks div2]
set_clock_groups -name async1 -asynchronous -group {clk div2} -group vclk
puts "clocks: [all_clocks]"
foreach_in_collection c [all_clocks] {
  puts "[get_object_name $c]: period [get_attribute $c period] waveform {[get_attribute $c waveform]} generated [get_attribute $c is_generated] virtual [get_attribute $c is_virtual] sources {[get_attribute $c sources]}"
}
show_sdc
