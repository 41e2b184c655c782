# report_net -connections: drivers and loads per net, with -verbose the
# capacitance lines; a net tied to 0, a floating net and a net with two
# drivers; -noflat stops at the boundary of h0; -min picks the rise values.
read_liberty conn_small.lib
read_verilog conn_small.v
link_design top
report_net -connections -verbose -significant_digits 3 {n0 nt nf nd}
report_net -noflat -connections {n2 nh}
report_net -connections -min {n0 nd}
