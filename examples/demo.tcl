# Demo: the gcd design of sky130hd, read, linked and reported.
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
