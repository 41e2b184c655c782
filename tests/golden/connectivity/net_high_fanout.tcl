# A net of 500 loads is a high-fan-out net ("h "), one of 499 is not;
# -threshold and -bound are both inclusive. report_net adds up the 500
# input capacitances (single precision) and the wire load extrapolated
# beyond the library's table.
read_liberty conn_small.lib
read_verilog conn_fanout.v
link_design fan
report_net_fanout -high_fanout
report_net_fanout -threshold 499 -bound 499
report_net
