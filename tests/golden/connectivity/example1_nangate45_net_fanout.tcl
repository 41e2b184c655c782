# report_net_fanout over example1 and Nangate45: every net; through the
# buffer u1 only r2q has a load behind a buffer.
read_liberty nangate45_typ.lib.gz
read_verilog example1.v
link_design top
report_net_fanout
report_net_fanout -tree -connections
