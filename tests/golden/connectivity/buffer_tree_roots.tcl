# How report_buffer_tree finds its roots: an output pin stands for itself,
# an input pin (also a hierarchical one) for its driver; a top input port
# drives a tree of its own (an unconnected output shows an empty net); a
# net inside a module reaches its port; nets without a driver and unknown
# names are told apart; a top output port under -from is a driver (its
# direction is output) and its tree is its net's, the port among the loads;
# no -from or -net prints the banner alone.
read_liberty conn_small.lib
read_verilog conn_small.v
link_design top
report_buffer_tree -from {u0/Y b1/A nosuch h0/a} -depth 0
report_buffer_tree -from d2/Y2 -connections
report_buffer_tree -net in1 -connections
puts "status: [report_buffer_tree -net {q nt nf nosuch}]"
report_buffer_tree -net h0/y
puts "status: [report_buffer_tree]"
report_buffer_tree -from out2 -depth 1 -nosplit -physical
