# Buses running down, up, [10:9], single-bit and inout.
read_liberty rpt_small.lib
read_verilog rpt_small.v
link_design top
report_bus
