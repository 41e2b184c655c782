# Every cell through the hierarchy, hierarchical ones with h and four blanks for the library.
read_liberty rpt_small.lib
read_verilog rpt_small.v
link_design top
report_cell
