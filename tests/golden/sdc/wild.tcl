# A file as tools and engineers write them (sdc_wild.sdc: current_design,
# Tcl variables, expr, foreach and lappend of collections, -add_delay,
# -clock_fall, -reference_pin, set_driving_cell -pin with input
# transitions, propagated clocks, uncertainty, transition, a fan-out limit
# on the design) reads to its end with no warning; write_sdc shows what it
# set: delays 2.5 * 0.2 = 0.5 and 0.25, load 0.04, max transition 0.25.
source ../golden/sdc/show_sdc.tcl
read_sdc sdc_wild.sdc
show_sdc
