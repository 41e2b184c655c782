# Net reports over nets annotated from SPEF: in1, n0 and out2 take the
# file's total capacitance as their wire capacitance and the sum of its
# resistors as their resistance (the load pins still count from the
# library); n2, not in the file, keeps the wire-load estimate. The "Attr"
# column stays empty on annotated nets too.
read_liberty conn_small.lib
read_verilog conn_small.v
link_design top
puts "annotated [read_spef conn_small.spef]"
report_net {in1 n0 out2 n2}
report_net -connections -verbose n0
report_net_fanout {in1 n0 out2 n2}
