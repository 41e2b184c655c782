# report_net over gcd and sky130hd with its constraints (which name no
# wire-load model: the library's default Small applies) on a few nets: the
# clock port and root clock net, a flop's data net, a port and an output
# port's net; the connections of the last two. Checked against an
# independent timer under the same model.
read_liberty sky130hd_tt.lib.gz
read_verilog gcd_sky130hd.v
link_design gcd
read_sdc gcd_sky130hd.sdc
report_net -significant_digits 6 {clk clknet_0_clk _000_ req_val resp_val}
report_net -connections -verbose -significant_digits 6 {req_val resp_val}
