# Linked without any library every cell is unresolved: the cones end at the
# first pins, a tree from a top port has no library cell to go through, and
# report_net has no wire-load model and no unit of its own (the library
# column stays blank); nh is driven at the top by the pin of h0 and has
# the pins of unresolved cells for loads.
read_verilog conn_small.v
link_design top
get_fanout_pins -level 3 in1
get_fanin_pins -level 3 out1
report_buffer_tree -net {in1 n0}
report_net -transition_times
