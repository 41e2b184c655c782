# Generic cells print no line, names reaching column 60 run into the library name, upper case sorts first.
read_liberty rpt_small.lib
read_verilog rpt_gtech.v
link_design gtop
report_hierarchy
