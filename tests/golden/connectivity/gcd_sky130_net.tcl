# report_net over gcd and sky130hd (default wire-load model Small) on a few
# nets: the clock port and root clock net, a flop's data net, a port and an
# output port's net; the connections of the last two. Checked against an
# independent timer under the same model.
read_liberty sky130hd_tt.lib.gz
read_verilog gcd_sky130hd.v
link_design gcd
report_net -significant_digits 6 {clk clknet_0_clk _000_ req_val resp_val}
report_net -connections -verbose -significant_digits 6 {req_val resp_val}
