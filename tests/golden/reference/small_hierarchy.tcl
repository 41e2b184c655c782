# One table per sub-design reached, also one reached only through another and an empty black box.
read_liberty rpt_small.lib
read_verilog rpt_small.v
link_design top
report_reference -hierarchy
