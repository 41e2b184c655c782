# Without any technology library the Note says unknown.
read_verilog rpt_gtech.v
link_design gtop
report_area
