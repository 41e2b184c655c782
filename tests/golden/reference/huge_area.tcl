# Areas whose "%f" text is longer than 31 characters print whole: one HUGE
# (1e25 in single precision), the sub-design of two, and the total.
read_liberty rpt_huge.lib
read_verilog rpt_huge.v
link_design htop
report_reference
