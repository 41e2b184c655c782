# A real design: two port buses, no net bus.
read_liberty nangate45_typ.lib.gz
read_verilog gcd_nangate45.v
link_design gcd
report_bus
