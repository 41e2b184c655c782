# The SDC file that comes with the nangate45 example, as a tool wrote it,
# reads to its end with no error and no warning: current_design, a named
# clock, -add_delay on every port.
read_liberty nangate45_typ.lib.gz
read_verilog gcd_nangate45.v
link_design gcd
read_sdc gcd_nangate45.sdc
puts "clocks [all_clocks], period [get_attribute [get_clocks core_clock] period]"
puts "inputs with delays [sizeof_collection [all_inputs -clock core_clock]] of [sizeof_collection [all_inputs]]"
puts "outputs with delays [sizeof_collection [all_outputs -clock core_clock]] of [sizeof_collection [all_outputs]]"
