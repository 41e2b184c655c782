# report_units over nangate45: femtofarads instead of picofarads.
read_liberty nangate45_typ.lib.gz
read_verilog gcd_nangate45.v
link_design
report_units
