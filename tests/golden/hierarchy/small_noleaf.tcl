# Only designs, and the option lines of the banner.
read_liberty rpt_small.lib
read_verilog rpt_small.v
link_design top
report_hierarchy -noleaf -full -nosplit
