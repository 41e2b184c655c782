# read_liberty and set_default_library: results, and the errors that leave
# the loaded libraries as they were.
puts [read_liberty yosys_cells.lib]
puts [read_liberty nangate45_typ.lib.gz]
if {[catch {read_liberty liberty_bad.lib} msg]} { puts "error: $msg" }
if {[catch {read_liberty no_such_file.lib} msg]} { puts "error: $msg" }
if {[catch {set_default_library nolib} msg]} { puts "error: $msg" }
puts [set_default_library NangateOpenCellLibrary]
puts [read_liberty yosys_cells.lib]
