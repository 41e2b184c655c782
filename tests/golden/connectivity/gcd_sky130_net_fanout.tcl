# report_net_fanout over gcd and sky130hd with its constraints: the clock
# port's net and the root clock net with their pins. A type text longer
# than its column runs into the net name, as the fixed format has it.
read_liberty sky130hd_tt.lib.gz
read_verilog gcd_sky130hd.v
link_design gcd
read_sdc gcd_sky130hd.sdc
report_net_fanout -connections {clk clknet_0_clk}
