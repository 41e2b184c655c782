# Loads and drives: set_load on ports (pin and wire capacitance, per edge
# and min/max) and on a net, set_port_fanout_number, set_fanout_load,
# set_drive, set_input_transition and set_driving_cell with its options.
source ../golden/sdc/show_sdc.tcl
set_load 0.05 [all_outputs]
set_load -wire_load 0.01 out1
set_load -max -rise 0.07 out2
set_load -subtract_pin_load 0.02 [get_nets w1]
set_port_fanout_number 3 q
set_port_fanout_number -min 1 q
set_fanout_load 2.5 [get_ports out1]
set_drive 0.5 [get_ports in1]
set_drive -min 0.25 [get_ports in1]
set_input_transition 0.1 [all_inputs]
set_input_transition -fall 0.3 rst
set_driving_cell -lib_cell BUF [get_ports in2]
set_driving_cell -lib_cell INV -library sdc_small -pin Z -from_pin A -multiply_by 2 -dont_scale -no_design_rule -input_transition_rise 0.2 -input_transition_fall 0.25 -max {data[0]}
set_driving_cell -lib_cell AND2 -from_pin B -min -fall {data[0]}
puts "fanout_load of out1: [get_attribute [get_ports out1] fanout_load], of out2: [get_attribute [get_ports out2] fanout_load]"
show_sdc
set_load -subtract_pin_load 0.05 [get_ports {out1 out2}]
