# A design linked without any library: the six N/A lines, status 0. The
# link warnings name each unresolved reference.
read_verilog example1.v
link_design
report_units
