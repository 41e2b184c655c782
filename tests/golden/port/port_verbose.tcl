# report_port -verbose over the hand-made design: after the basic table the
# external loads of all ports in header order, the input delays in the
# order set, the driving cells in min/max notation, the drives, the input
# transitions and the output delays sorted by clock, reference pin and
# clock edge.
read_liberty port_small.lib
read_verilog port_small.v
link_design port_top
read_sdc port_small.sdc
puts "status: [report_port -verbose]"
