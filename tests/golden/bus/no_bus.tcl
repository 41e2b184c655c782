# A design without buses: both tables with headings only.
read_liberty rpt_small.lib
read_verilog example1.v
link_design top
report_bus
