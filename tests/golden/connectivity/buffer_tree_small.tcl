# report_buffer_tree down the tree of u0/Y: three stages of buffers and
# inverters, the two-output buffer d2 (a subtree per output), top ports on
# the tree, a flop at its end; at the net's own level the walk stops at the
# boundary of h0, with -hierarchy it goes through. Depth bounds 0, 1 and a
# negative one (no bound), and -connections on the driver lines.
read_liberty conn_small.lib
read_verilog conn_small.v
link_design top
puts "status: [report_buffer_tree -net n0]"
report_buffer_tree -net n0 -hierarchy -connections
report_buffer_tree -net n0 -depth 0
report_buffer_tree -net n0 -depth 1
report_buffer_tree -net n0 -depth -1 -hierarchy
