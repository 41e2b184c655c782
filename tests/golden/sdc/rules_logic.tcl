# Design-rule limits on the design and on ports, set_max_area, logic
# values, case analysis, ideal and dont-touch networks.
source ../golden/sdc/show_sdc.tcl
create_clock -period 10 [get_ports clk]
set_max_transition 0.8 [current_design]
set_max_transition 0.4 [get_ports {out*}]
set_max_capacitance 0.3 [current_design]
set_max_capacitance 0.1 q
set_min_capacitance 0.001 [get_ports in1]
set_max_fanout 12 sdc_top
set_max_fanout 4 [get_ports in2]
set_max_area 100.5
set_logic_zero [get_ports rst]
set_logic_one {data[1]}
set_logic_dc [get_ports {data[0]}]
set_case_analysis 0 [get_ports in2]
set_case_analysis rising [get_pins u_xor/B]
set_case_analysis one [get_pins b2/a]
set_ideal_network [get_ports in1]
set_ideal_network -no_propagate [get_nets w2]
set_dont_touch_network [get_clocks clk]
show_sdc
