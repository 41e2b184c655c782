# Counts and areas only: a constant cell counts as combinational, a buffer twice, hierarchical cells as cells.
read_liberty rpt_small.lib
read_verilog rpt_small.v
link_design top
report_area
