# Generic gates show the same estimated areas in every report, before and
# after report_area: INV that of INVX1 (1), NAND2 that of NAND2X1 (2.5). The
# constant LOGIC0 stays at 0 although TIELO computes it: report_area leaves
# unmapped constants out, and no other report gives them an area.
read_liberty rpt_small.lib
read_verilog rpt_gtech_order.v
link_design gorder
report_reference
report_cell
report_area
report_reference
report_cell
