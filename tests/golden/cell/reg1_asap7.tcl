# A real design: three flops, a buffer and a gate over the asap7 library.
read_liberty asap7_small.lib.gz
read_verilog reg1_asap7.v
link_design top
report_cell
report_cell -connections -verbose {u2 r3}
