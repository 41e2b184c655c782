# A real design: a few named cells, sequential and combinational.
read_liberty sky130hd_tt.lib.gz
read_verilog gcd_sky130hd.v
link_design gcd
report_cell {_412_ _301_}
report_cell -connections -verbose {_412_}
