# Generic gates take the area of the smallest library cell of the same
# function: INV that of INVX1, NAND2 that of NAND2X1; OR2 has none and
# counts 0.
read_liberty rpt_small.lib
read_verilog rpt_gtech_estimate.v
link_design gest
report_area
