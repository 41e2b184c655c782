# get_fanout_pins over the hand-made design: default level, deeper levels
# through buffers, the two-output buffer (one output followed), a
# hierarchical pin, a flop that ends the cone, a top input port, constant
# and floating nets, level 0, and an unknown name after a good one.
read_liberty conn_small.lib
read_verilog conn_small.v
link_design top
get_fanout_pins n0
get_fanout_pins -level 3 n0
puts "status: [get_fanout_pins -level 0 n0]"
get_fanout_pins -level 5 i3/A
get_fanout_pins nt
get_fanout_pins -level 2 nf
get_fanout_pins -level 2 in2
get_fanout_pins -level 2 h0/a
puts "status: [get_fanout_pins -verbose {nd nosuch}]"
