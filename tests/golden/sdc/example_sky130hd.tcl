# The SDC file that comes with the sky130hd example reads to its end with no
# error and no warning of its own: Tcl variables and expr, a clock named
# after its port, a list of names with a pattern, all_outputs, all_inputs.
read_liberty sky130hd_tt.lib.gz
read_verilog gcd_sky130hd.v
link_design gcd
read_sdc gcd_sky130hd.sdc
puts "clocks [all_clocks], period [get_attribute [get_clocks clk] period]"
puts "inputs with delays [sizeof_collection [all_inputs -clock clk]] of [sizeof_collection [all_inputs]]"
puts "outputs with delays [sizeof_collection [all_outputs -clock clk]] of [sizeof_collection [all_outputs]]"
