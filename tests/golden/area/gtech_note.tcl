# Generic cells before mapping: the Note names the default library, the constant generic cell is not counted, and the generic library, without a file, is not listed.
read_liberty rpt_small.lib
read_verilog rpt_gtech.v
link_design gtop
report_area -verbose
