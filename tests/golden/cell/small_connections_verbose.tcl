# Tied, unconnected and multiply driven inputs, a hierarchical cell, ports at the far end.
read_liberty rpt_small.lib
read_verilog rpt_small.v
link_design top
report_cell -connections -verbose {n_tied n_open ld m0 io_drv}
