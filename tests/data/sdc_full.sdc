# One of each kind of constraint, for the write_sdc round trip.
set_units -time ns -capacitance pF -resistance kOhm
set_operating_conditions -max slow -min typ
set_wire_load_mode enclosed
set_wire_load_model -name small
set_wire_load_model -name big [get_cells b2]
set_wire_load_selection_group -max by_area
set_max_area 50
set_max_transition 0.9 [current_design]
set_max_fanout 16 [current_design]
create_clock -name clk -period 10 -waveform {0 4} [get_ports clk]
create_clock -name clk_x2 -period 5 -add [get_ports clk]
create_clock -name vclk -period 3.3
create_generated_clock -name div2 -source [get_ports clk] -divide_by 2 -comment {half rate} [get_pins r1/Q]
set_propagated_clock [get_clocks clk]
set_clock_uncertainty -setup 0.15 [get_clocks clk]
set_clock_uncertainty -hold 0.05 -from [get_clocks clk] -to [get_clocks vclk]
set_clock_latency -source -late 0.7 [get_clocks clk]
set_clock_latency 0.2 [get_pins u_ckbuf/Z]
set_clock_transition 0.1 [get_clocks vclk]
set_clock_groups -physically_exclusive -group clk -group vclk -comment {never together}
set_input_delay 1.25 -clock clk [get_ports {in1 in2}]
set_input_delay -max 2 -clock vclk -clock_fall -add_delay [get_ports in1]
set_output_delay 0.333 -clock clk -reference_pin [get_pins u_ckbuf/Z] [all_outputs]
set_load 0.012 [get_ports out1]
set_load -wire_load -min 0.003 [get_ports out1]
set_load 0.02 [get_nets w1]
set_port_fanout_number 2 [get_ports out2]
set_fanout_load 3 [get_ports out2]
set_driving_cell -lib_cell INV -pin Z -rise [get_ports in1]
set_driving_cell -lib_cell BUF -fall -multiply_by 1.5 [get_ports in1]
set_drive 1.2 [get_ports rst]
set_input_transition -min 0.05 [get_ports {data[0]}]
set_max_capacitance 0.25 [get_ports q]
set_min_capacitance 0.002 [get_ports in2]
set_max_fanout 3 [get_ports in2]
set_logic_one [get_ports {data[1]}]
set_case_analysis falling [get_pins b1/b]
set_ideal_network [get_ports rst]
set_dont_touch_network [get_ports clk]
set_false_path -from [get_ports rst]
set_multicycle_path 3 -end -setup -through [get_nets w1] -to [get_pins r1/D]
set_max_delay 4.5 -from [get_clocks vclk] -rise_through [list [get_pins u_xor/Z] [get_nets w2]] -to [get_ports out1]
set_min_delay 0.01 -from [get_ports in2]
group_path -name outs -to [all_outputs]
set_disable_timing -from A -to Z [get_cells u_ckbuf]
