# The clock tree of gcd: the port clk, a root clock buffer, four leaf
# buffers, and the flops' clock pins under each leaf.
read_liberty sky130hd_tt.lib.gz
read_verilog gcd_sky130hd.v
link_design gcd
report_buffer_tree -net clk
report_buffer_tree -from clkbuf_2_3__f_clk/A -connections -depth 1
