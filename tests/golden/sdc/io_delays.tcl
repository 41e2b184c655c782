# set_input_delay and set_output_delay: -clock and -clock_fall, -rise/-fall,
# -min/-max, -add_delay keeping the delays of other clock edges and its
# absence replacing them, -reference_pin, a pin of a cell, and a collection
# or a name pattern as the objects.
source ../golden/sdc/show_sdc.tcl
create_clock -period 10 [get_ports clk]
create_clock -name vclk -period 10
set_input_delay 1 -clock clk [get_ports in*]
set_input_delay -max 2 -clock clk in1
set_input_delay -rise -min 0.5 -clock clk in1
set_input_delay 3 -clock vclk -clock_fall -add_delay in1
# Without -add_delay the delay relative to vclk replaces those of in2.
set_input_delay 4 -clock clk -add_delay -fall in2
set_input_delay 0.25 -clock vclk in2
set_input_delay 0.5 -clock clk -reference_pin [get_pins u_ckbuf/Z] {data[*]}
set_input_delay 0.125 rst
set_output_delay 1.5 -clock clk [all_outputs]
set_output_delay -min -0.5 -clock clk -network_latency_included out1
set_output_delay 0.75 -clock vclk [get_pins b1/u_inv/A]
show_sdc
