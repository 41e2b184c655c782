# report_net_fanout -tree follows 100 stages of buffers unless -depth says
# otherwise: on a chain of 101 buffers the input port's net counts the input
# of the last buffer (depth 100), with -depth 101 the output port behind it.
# Every later net of the chain reaches a load already counted and has no row.
read_liberty conn_small.lib
read_verilog conn_chain.v
link_design chain
report_net_fanout -tree -connections
report_net_fanout -tree -depth 101
