# A real design: example1 over nangate45.
read_liberty nangate45_typ.lib.gz
read_verilog example1.v
link_design top
report_reference -hierarchy
