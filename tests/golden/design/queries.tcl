# read_verilog, link_design, current_design and the get_* commands on a
# small hierarchy with a module used twice.
puts [read_verilog hier_small.v]
puts [link_design]
puts [current_design]
puts "cells: [get_cells *]"
puts "cells u1/*: [get_cells u1/*]"
puts "hier cells: [get_cells -hierarchical r*]"
puts "nets: [get_nets -hierarchical q*]"
puts "pins: [get_pins u*/d*]"
puts "ports: [get_ports d]"
puts "inputs: [all_inputs]"
puts "outputs: [all_outputs]"
puts "none: [get_cells nothing_here]"
puts "quiet: [get_cells -quiet nothing_here]"
puts [current_design stage]
puts "stage cells: [get_cells *]"
