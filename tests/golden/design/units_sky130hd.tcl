# report_units over a real library: the units of sky130hd.
read_liberty sky130hd_tt.lib.gz
read_verilog gcd_sky130hd.v
link_design gcd
report_units
