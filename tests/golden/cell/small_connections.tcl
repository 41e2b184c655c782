# A name that is not found is skipped; no legend with a list.
read_liberty rpt_small.lib
read_verilog rpt_small.v
link_design top
report_cell -connections -significant_digits 3 {n_tied nothing}
