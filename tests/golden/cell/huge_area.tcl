# Areas whose "%f" text is longer than 31 characters print whole: the
# sub-design of two HUGE cells (1e25 each, single precision) and each HUGE.
read_liberty rpt_huge.lib
read_verilog rpt_huge.v
link_design htop
report_cell
