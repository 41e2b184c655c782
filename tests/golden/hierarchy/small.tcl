# Sorted references per parent; the operator module and the unresolved reference are left out; sub appears under both parents.
read_liberty rpt_small.lib
read_verilog rpt_small.v
link_design top
report_hierarchy
