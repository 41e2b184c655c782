# Generic cells are references like any other.
read_liberty rpt_small.lib
read_verilog rpt_gtech.v
link_design gtop
report_reference
