# The wire-load and operating-condition settings as the store keeps them:
# set_wire_load_model on the design (min and max apart), on a port and on a
# hierarchical cell, set_wire_load_mode, set_wire_load_selection_group and
# set_operating_conditions, and what an unknown model or mode gives.
source ../golden/sdc/show_sdc.tcl
set_wire_load_model -name small -min
set_wire_load_model -name big -library sdc_small -max
set_wire_load_model -name flat [get_ports out1]
set_wire_load_model -name big [get_cells b1]
set_wire_load_model -name nothing
set_wire_load_mode segmented
set_wire_load_selection_group by_area
set_operating_conditions -max slow -min typ
if {[catch {set_wire_load_mode sideways} message]} { puts $message }
if {[catch {set_operating_conditions -analysis_type odd typ} message]} { puts $message }
show_sdc
