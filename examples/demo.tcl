# Demo: the gcd design of sky130hd, read, linked, constrained and reported.
# Run from this folder:  ../build/kelvo demo.tcl
read_liberty sky130hd_tt.lib.gz
read_verilog gcd_sky130hd.v
link_design gcd
puts "current design: [current_design]"
puts "ports: [llength [get_ports *]]  cells: [llength [get_cells *]]  nets: [llength [get_nets *]]"
report_units
check_design
report_area
report_reference
report_hierarchy
report_bus
report_cell [get_cells _2*_]

# Constraints, then what follows from them: ports, nets, timing and power.
read_sdc gcd_sky130hd.sdc
report_port -verbose [get_ports {clk req_msg[0] resp_msg[0]}]
report_net -connections [get_nets _000_]
report_net_fanout -threshold 20
report_clock
report_timing
report_constraint
report_power
