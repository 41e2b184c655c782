# Direct references in object order, design rows with h n, a clock gate with n, a total of distinct references.
read_liberty rpt_small.lib
read_verilog rpt_small.v
link_design top
report_reference -nosplit
