# Area per instance path (a module used under two parents keeps its paths apart), the Total row, and the five type tables.
read_liberty rpt_small.lib
read_verilog rpt_small.v
link_design top
report_area -hierarchy -verbose -nosplit
