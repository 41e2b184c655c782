# get_libs and get_lib_cells: names in the order read, cells as
# library/cell, a pattern without "/" searching every library.
read_liberty nangate45_typ.lib.gz
read_liberty asap7_small.lib.gz
puts "libs: [get_libs]"
puts "libs N*: [get_libs N*]"
puts "and2: [get_lib_cells */AND2_X?]"
puts "dff: [get_lib_cells DFFHQx4*]"
puts "nangate cells: [llength [get_lib_cells NangateOpenCellLibrary/*]]"
puts "none: [get_lib_cells nothing]"
