# A net keeps the names an assign merged into it: get_nets finds it by any
# of them, literally or by pattern, at the top and below.
read_liberty rpt_small.lib
read_verilog net_aliases.v
link_design top
puts [get_nets other]
puts [get_nets bus*]
puts [get_nets -hierarchical mid]
puts [get_nets u1/m*]
puts [get_nets u1/mid]
puts [sizeof_collection [get_nets *]]
