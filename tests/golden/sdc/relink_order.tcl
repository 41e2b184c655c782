# The warnings of a re-link come in the order the first constraint was set
# on each object (clocks first), not in the order of names or of ports.
read_liberty sdc_small.lib
read_verilog sdc_relink_order.v
link_design relink_order
create_clock -name clk -period 10 [get_ports clk]
create_clock -name inner -period 5 [get_pins {m1/$1}]
set_output_delay 1 -clock inner [get_ports y]
set_case_analysis 0 [get_pins {z1/$0}]
set_input_delay 2 -clock inner [get_ports b]
set_input_delay 3 -clock clk [get_ports c]
set_ideal_network [get_pins {a1/$0}]
set_case_analysis 1 [get_pins {m1/$0}]
set_output_delay 4 -clock inner [get_ports y]
read_verilog sdc_relink_order_blk.v
link_design relink_order
puts "after: clocks [all_clocks]"
