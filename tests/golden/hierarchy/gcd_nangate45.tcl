# A real flat design: one line per distinct library cell.
read_liberty nangate45_typ.lib.gz
read_verilog gcd_nangate45.v
link_design gcd
report_hierarchy
