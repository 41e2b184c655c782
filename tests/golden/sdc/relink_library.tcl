# A library read again under the same name: the wire-load models and
# operating conditions it still holds are followed, those it lost are
# dropped with one warning each (a model set for both min and max too),
# on the design, a port and a hierarchical cell.
source ../golden/sdc/show_sdc.tcl
set_wire_load_model -name big
set_wire_load_model -name flat [get_ports out1]
set_wire_load_model -name small [get_ports out2]
set_wire_load_model -name big -max [get_cells b1]
set_wire_load_model -name small -min [get_cells b1]
set_wire_load_selection_group by_area
set_operating_conditions -max slow -min typ
# sdc_small.lib without the models big and flat and the conditions slow.
set channel [open sdc_small.lib]
set text [read $channel]
close $channel
puts "cut: [regsub {wire_load \(big\) \{[^\}]*\}} $text {} text]\
  [regsub {wire_load \(flat\) \{[^\}]*\}} $text {} text]\
  [regsub {operating_conditions \(slow\)[^\n]*\n} $text {} text]\
  [regsub {wire_load_from_area \(10, 100, big\) ;} $text {} text]"
set channel [file tempfile path]
puts $channel $text
close $channel
read_liberty $path
file delete $path
show_sdc
