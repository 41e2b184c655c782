# A real flat design: -hierarchy adds no table.
read_liberty nangate45_typ.lib.gz
read_verilog gcd_nangate45.v
link_design gcd
report_reference -hierarchy
