# report_net over the hand-made design: every driven net of the top level
# in name order, with pin and wire loads (wire-load model "small" of the
# library), the driver's logic level and the closing rows; then -threshold
# (Total and Average still count every net), -min and the transition times
# at the drivers; a negative threshold; -verbose without -connections; a
# list of unknown names. A floating net and a net tied to 0 by name: fan-in
# 0 and 1, no logic level, and no row among the transition times.
read_liberty conn_small.lib
read_verilog conn_small.v
link_design top
puts "status: [report_net]"
report_net -threshold 2 -transition_times -min
puts "status: [report_net -threshold -1 {n0 in1}]"
puts "status: [report_net -verbose n0]"
puts "status: [report_net {nosuch other}]"
report_net -transition_times {nt nf}
