# Options of report_net_fanout that exclude each other fail before any
# banner; a bound below the threshold fails silently; -depth bounds the
# walk through buffers (a buffer at the bound counts as a load); -depth 0
# needs no -tree; no row at all still closes the report.
read_liberty conn_small.lib
read_verilog conn_small.v
link_design top
puts "status: [report_net_fanout -high_fanout -threshold 3]"
puts "status: [report_net_fanout -tree n0]"
puts "status: [report_net_fanout -depth 1]"
puts "status: [report_net_fanout -threshold 3 -bound 2]"
report_net_fanout -tree -depth 1 -nosplit -physical
puts "status: [report_net_fanout -depth 0 -high_fanout]"
