# set_hierarchy_separator over three levels: patterns of cells, nets and
# pins written with "." find the objects, which print with "/"; "/" still
# works, regular expressions are taken as written; write_sdc writes "/".
source ../golden/sdc/show_sdc.tcl
read_verilog query_deep.v
link_design deep_top
set_hierarchy_separator .
puts "cells: [get_cells m1.l1.u_inv] / [get_cells m1.*.u_inv] / -hierarchical: [get_cells -hierarchical l1.*]"
puts "pins: [get_pins m1.l2.u_inv.A] / nets: [get_nets m1.n]"
puts "slash: [get_cells m1/l2/u_inv]"
puts "regexp: [get_cells -regexp {m1/l./u_inv}] / [get_cells -quiet -regexp {m1\.l1\.u_inv}]"
puts "of_objects: [get_pins -of_objects m1.l1.u_inv]"
puts "none: [get_nets m1.zz]"
set_load 0.01 [get_nets m1.n]
set_case_analysis 0 m1.l2.u_inv.A
show_sdc
