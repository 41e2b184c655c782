# report_net_fanout over the hand-made design: every net once per driving
# pin, also the segments inside h0 and the net with two drivers twice;
# -tree counts through buffers and inverters (loads right on the net do
# not count, a load reached once is not counted again, inverters sort the
# loads into positive and negative); the pin blocks of -connections and
# -verbose; a constant, a floating and an unknown net in a list; limits.
read_liberty conn_small.lib
read_verilog conn_small.v
link_design top
report_net_fanout
report_net_fanout -tree
report_net_fanout -connections {n0 nt nf nd nosuch out2}
report_net_fanout -tree -connections -min
report_net_fanout -verbose -threshold 2 -bound 2
