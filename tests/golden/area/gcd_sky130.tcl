# A real design: unresolved tap cells count as cells and go to the unknown table.
read_liberty sky130hd_tt.lib.gz
read_verilog gcd_sky130hd.v
link_design gcd
report_area -hierarchy -verbose
