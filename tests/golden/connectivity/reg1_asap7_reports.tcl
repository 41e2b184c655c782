# The connectivity reports over reg1 and an ASAP7 library: units of fF and
# ps, and a library without a wire-load model (report_net names the library
# but neither model nor operating conditions; no wire figures). The
# capacitances and slews agree with an independent timer. A buffer's load
# shows the buffer's reference, not its own.
read_liberty asap7_small.lib.gz
read_verilog reg1_asap7.v
link_design top
report_net -transition_times
report_net -connections -verbose {u1z r2q}
report_net_fanout -connections
get_fanin_pins -level 2 r3/D
get_fanout_pins -level 3 r2q
report_buffer_tree -from r2/Q -connections
