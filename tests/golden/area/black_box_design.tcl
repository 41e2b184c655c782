# A module that stands for a black box: each instance adds the leaf area
# below it (2.5 + 1) to "Macro/Black Box area" (2 x 3.5 = 7), and its row in
# "Macro/Black Type Info" shows the same figures: Area 3.5, Total Area 7.
# It is not walked, and its area is not part of the total cell area.
read_liberty rpt_small.lib
read_verilog rpt_blackbox.v
link_design bbtop
report_area -hierarchy -verbose
