# Linked without any library every cell is unresolved: the cones end at the
# first pins, and a tree from a top port has no library cell to go through.
read_verilog conn_small.v
link_design top
get_fanout_pins -level 3 in1
get_fanin_pins -level 3 out1
report_buffer_tree -net {in1 n0}
