# report_port over the hand-made design and its constraints, every port:
# the basic table with loads (rise only, min only, wire), limits, limits
# derived from driving cells (min only, max only, a cell's input pin, the
# smallest of two cells, none on an inout) and the attribute letters
# (logic one and zero, case values, ideal network sources).
read_liberty port_small.lib
read_verilog port_small.v
link_design port_top
read_sdc port_small.sdc
puts "status: [report_port]"
