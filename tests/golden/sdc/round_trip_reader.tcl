# Run by round_trip.tcl in a shell of its own: reads the first file and
# writes what it read to the second.
read_liberty sdc_small.lib
read_verilog sdc_small.v
link_design sdc_top
read_sdc [lindex $argv 0]
write_sdc [lindex $argv 1]
