# report_design: without a design; with a design and no library; with the
# library's defaults; with the constraints of sdc_full.sdc; and with a
# model chosen by area for max and set for min.
report_design
read_verilog sdc_small.v
link_design sdc_top
report_design
read_liberty sdc_small.lib
link_design sdc_top
report_design -nosplit
set_wire_load_selection_group -max by_area
set_wire_load_model -name flat -min
report_design
read_sdc sdc_full.sdc
set_disable_timing [get_cells b1/u_inv]
set_disable_timing -to Z [get_lib_cells sdc_small/BUF]
set_min_capacitance 0.001 [current_design]
set_max_capacitance 0.5 [current_design]
report_design -physical
