# Sourced by the timing cases: the small design of two registers with a
# 2 ns clock, an input delay of 0.5 with a transition of 0.1 and an output
# delay of 1.7.
read_liberty timer_small.lib
read_verilog timer_small.v
link_design tc
create_clock -name clk -period 2 [get_ports clk]
set_input_delay 0.5 -clock clk [get_ports in1]
set_input_transition 0.1 [get_ports in1]
set_output_delay 1.7 -clock clk [get_ports out1]
