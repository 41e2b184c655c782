# Constraints of the port report tests: every port of port_top gets what
# one branch of the port report needs.
create_clock -name clkA -period 10 [get_ports clk]
create_clock -name clkB -period 20 [get_ports clk2]

# clk: the source of an ideal network.
set_ideal_network [get_ports clk]

# in1: three input delays (two clocks, both edges of one), a maximum
# fan-out, an external fan-out number and a drive resistance for max only.
set_input_delay -clock clkA -max 1.5 [get_ports in1]
set_input_delay -clock clkA -min 0.5 [get_ports in1]
set_input_delay -clock clkA -clock_fall -add_delay 2 [get_ports in1]
set_input_delay -clock clkB -rise -max -add_delay 0.25 [get_ports in1]
set_max_fanout 8 [get_ports in1]
set_port_fanout_number 3 [get_ports in1]
set_drive -max 0.5 [get_ports in1]

# in2: a driving cell for min only, a transition for max only, a drive
# resistance for the minimum rise only, one input delay.
set_driving_cell -lib_cell BUF -min [get_ports in2]
set_input_transition -max 0.2 [get_ports in2]
set_drive -min -rise 0.3 [get_ports in2]
set_input_delay -clock clkB 0.7 [get_ports in2]

# data[1]: one cell for min, another for max; a case value of 0; a drive
# resistance for the maximum rise only.
set_driving_cell -lib_cell BUFX2 -min [get_ports {data[1]}]
set_driving_cell -lib_cell BUF -max [get_ports {data[1]}]
set_case_analysis 0 [get_ports {data[1]}]
set_drive -max -rise 0.6 [get_ports {data[1]}]

# data[0]: a driving cell for the fall edge only (its multiplier and flag
# are not the rise edge's); a rising case value, which no letter shows.
set_driving_cell -lib_cell INV -fall -multiply_by 3 -dont_scale [get_ports {data[0]}]
set_case_analysis rising [get_ports {data[0]}]

# bidir: an inout port with a driving cell, a load and a fan-out number.
set_driving_cell -lib_cell BUF [get_ports bidir]
set_load 0.04 [get_ports bidir]
set_port_fanout_number 2 [get_ports bidir]

# in3: logic one, and the source of an ideal network.
set_logic_one [get_ports in3]
set_ideal_network [get_ports in3]

# in4: logic zero; a minimum capacitance without any drive.
set_logic_zero [get_ports in4]
set_min_capacitance 0.01 [get_ports in4]

# in5: a driving cell for max only with every option; a maximum transition.
set_driving_cell -lib_cell BUFX2 -max -multiply_by 2 -dont_scale -no_design_rule [get_ports in5]
set_max_transition 0.45 [get_ports in5]

# in6: a driving cell from an input pin, the same multiplier for min and max.
set_driving_cell -lib_cell AND2 -pin Z -from_pin B -multiply_by 2 -no_design_rule [get_ports in6]

# in7: different settings for min and max, a maximum capacitance of its
# own, transitions for every edge with a smaller minimum fall.
set_driving_cell -lib_cell BUF -min -multiply_by 1.5 -dont_scale -no_design_rule [get_ports in7]
set_driving_cell -lib_cell BUF -max -dont_scale -no_design_rule [get_ports in7]
set_max_capacitance 0.7 [get_ports in7]
set_input_transition 0.12 [get_ports in7]
set_input_transition -min -fall 0.06 [get_ports in7]

# out1: output delays on two clocks, with and without reference pins and
# on both edges of clkA, set out of their report order; a fanout load, a
# load for the rise edge only, a fan-out number, a maximum transition.
set_output_delay -clock clkB 1 [get_ports out1]
set_output_delay -clock clkA -clock_fall -add_delay 0.8 [get_ports out1]
set_output_delay -clock clkA -max -add_delay 0.6 [get_ports out1]
set_output_delay -clock clkA -reference_pin [get_pins r2/CK] -min -add_delay -0.1 [get_ports out1]
set_output_delay -clock clkA -reference_pin [get_pins u_ck/Z] -add_delay 0.5 [get_ports out1]
set_output_delay -clock clkA -reference_pin [get_pins r1/CK] -add_delay 0.4 [get_ports out1]
set_fanout_load 2.5 [get_ports out1]
set_load -rise 0.07 [get_ports out1]
set_port_fanout_number 3 [get_ports out1]
set_max_transition 0.9 [get_ports out1]

# out2: a load and a fan-out number for min only, a maximum capacitance, a
# fanout load of 0 and an output delay on the falling edge of clkB.
set_load -min 0.03 [get_ports out2]
set_port_fanout_number -min 5 [get_ports out2]
set_max_capacitance 0.35 [get_ports out2]
set_fanout_load 0 [get_ports out2]
set_output_delay -clock clkB -clock_fall 0.3 [get_ports out2]

# out3: pin and wire loads, a wire-load model, a fanout load and no
# output delay.
set_load 0.06 [get_ports out3]
set_load -wire_load 0.02 [get_ports out3]
set_wire_load_model -name big [get_ports out3]
set_fanout_load 1.25 [get_ports out3]

# out4: a wire-load model for max only and an output delay without a clock.
set_wire_load_model -name small -max [get_ports out4]
set_output_delay 0.2 [get_ports out4]
