# Timing exceptions: false paths, multicycle paths, max and min delays with
# -from/-through/-to and their rise and fall forms, -through kept in the
# order given, a later exception on the same paths replacing the earlier
# one's value, group_path, and set_disable_timing.
source ../golden/sdc/show_sdc.tcl
create_clock -period 10 [get_ports clk]
create_clock -name vclk -period 5
set_false_path -from [get_ports rst]
set_false_path -setup -from [get_clocks clk] -to [get_clocks vclk]
set_false_path -hold -rise_from vclk -fall_to [get_pins r1/D]
set_multicycle_path 2 -setup -from [get_cells r2] -through [get_nets w2] -to [get_ports out1]
set_multicycle_path 1 -hold -start -from [get_cells r2] -to [get_ports out1]
set_max_delay 5 -from in1 -through [get_pins u_xor/Z] -rise_through [get_pins r1/D] -to q
set_max_delay 6 -from in1 -through [get_pins u_xor/Z] -rise_through [get_pins r1/D] -to q
set_min_delay 0.5 -fall -to [get_ports out2]
set_max_delay 3 -ignore_clock_latency -through [list [get_ports in2] [get_pins b1/a]] -to out1
group_path -name inputs -weight 2 -from [all_inputs]
group_path -default -to [get_ports q]
set_disable_timing [get_cells u_ckbuf]
set_disable_timing -from A -to Z [get_cells b1/u_and]
set_disable_timing [get_lib_cells sdc_small/XOR2]
set_disable_timing [get_lib_pins sdc_small/DFF/CK]
show_sdc
