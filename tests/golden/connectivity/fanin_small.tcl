# get_fanin_pins over the hand-made design: default level, deeper levels,
# the first-pin depth effect on a net with two drivers, a negative level,
# a hierarchical pin, a flop that ends the cone, constant and floating
# nets, and a name that is neither pin nor net among good ones.
read_liberty conn_small.lib
read_verilog conn_small.v
link_design top
puts "status: [get_fanin_pins r0/D]"
get_fanin_pins -level 3 r0/D
get_fanin_pins nd
get_fanin_pins -level 0 nd
get_fanin_pins -level -1 l1/Y
get_fanin_pins n0
get_fanin_pins -level 2 n0
get_fanin_pins h0/y
get_fanin_pins -level 2 h0/y
get_fanin_pins -level 5 q
get_fanin_pins {nt nf}
puts "status: [get_fanin_pins -verbose {nosuch in1}]"
