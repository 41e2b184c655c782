# Constraints of report_port over reg1_asap7, in the library's units (ps,
# fF, kohm) but for one delay in ns: every figure prints in the library's
# units as it was meant.
create_clock -name clk1 -period 500 [get_ports clk1]
set_input_delay -clock clk1 20 [get_ports in1]
set_max_fanout 6 [get_ports in1]
set_driving_cell -lib_cell BUFx2_ASAP7_75t_R [get_ports in1]

set_input_delay -clock clk1 -min 5 [get_ports in2]
set_max_capacitance 40 [get_ports in2]
set_min_capacitance 1.25 [get_ports in2]
set_input_transition 15 [get_ports in2]
set_drive 0.25 [get_ports in2]

set_case_analysis 1 [get_ports clk3]

# A load of 0 is a value under "Pin Load" yet no minimum load; a negative
# minimum load of one edge loses to the missing other edge.
set_load 0 [get_ports clk2]
set_load -min -rise -0.5 [get_ports clk1]

set_output_delay -clock clk1 -clock_fall 30 [get_ports out]
set_load 2.5 [get_ports out]
set_load -wire_load 0.75 [get_ports out]
set_port_fanout_number 4 [get_ports out]
set_max_transition 100 [get_ports out]
set_fanout_load 3 [get_ports out]

# The maximum input delay of in2 in ns, into the same delay as its minimum.
set_units -time ns
set_input_delay -clock clk1 -max -add_delay 0.035 [get_ports in2]
