# A read error that no catch takes ends the script with status 1; what was
# printed before it stays.
puts [read_liberty yosys_cells.lib]
read_verilog bad/v_nul.v
puts "not reached"
