# Combinational loops end: a walk that comes back to a pin of its own path
# shows that pin and does not go round again, with or without a bound.
read_liberty conn_small.lib
read_verilog conn_loop.v
link_design loops
report_buffer_tree -net r1
report_buffer_tree -net r1 -depth 5
get_fanin_pins -level -1 g/Y
get_fanout_pins -level 100 in1
report_net_fanout -tree -connections
