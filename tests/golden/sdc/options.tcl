# The options the other cases leave out, each command's -help, and
# read_sdc -echo. Options taken without effect (their usage says
# "Accepted") are not written back.
source ../golden/sdc/show_sdc.tcl
puts "--- -help: the first line of each usage"
set commands {
  create_clock create_generated_clock set_clock_uncertainty set_clock_latency
  set_clock_transition set_propagated_clock set_input_delay set_output_delay set_load
  set_port_fanout_number set_fanout_load set_driving_cell set_drive set_input_transition
  set_max_transition set_max_capacitance set_min_capacitance set_max_fanout set_max_area
  set_logic_zero set_logic_one set_logic_dc set_case_analysis set_ideal_network
  set_dont_touch_network set_wire_load_model set_wire_load_mode
  set_wire_load_selection_group set_operating_conditions set_units set_false_path
  set_multicycle_path set_max_delay set_min_delay set_clock_groups set_disable_timing
  group_path current_design set_hierarchy_separator read_sdc write_sdc
  get_ports get_pins get_nets get_cells get_clocks get_lib_cells get_lib_pins get_libs
  all_inputs all_outputs all_clocks all_registers sizeof_collection
  foreach_in_collection get_attribute get_object_name
}
# The usage goes to standard output directly: a shell of its own prints it.
set script [file tempfile script_path]
foreach command $commands { puts $script "$command -help" }
close $script
set usage [exec [info nameofexecutable] $script_path]
file delete $script_path
foreach line [split $usage \n] {
  if {[string match "Usage: *" $line]} { puts $line }
}
puts "--- read_sdc -echo"
read_sdc -echo sdc_small.sdc.gz
puts "--- options"
create_clock -period 10 -comment {main clock} [get_ports clk]
create_clock -name vclk -period 5
create_generated_clock -name fast -source [get_ports clk] -multiply_by 2 -duty_cycle 25 -combinational [get_pins u_ckbuf/Z]
create_generated_clock -name slow -source [get_ports clk] -divide_by 2 -add [get_pins u_ckbuf/Z]
set_clock_uncertainty -hold 0.02 -fall_from clk -rise_to vclk
set_clock_latency 0.3 -clock vclk [get_pins r1/CK]
set_clock_transition -max -fall 0.07 [get_clocks vclk]
set_input_delay 0.4 -clock clk -level_sensitive -source_latency_included in1
set_output_delay 0.6 -clock clk -source_latency_included out2
set_load -fall 0.03 out1
set_drive -fall -max 0.7 in2
set_port_fanout_number -max 5 q
set_max_transition -clock_path -rise 0.2 [get_ports out1]
set_max_area 12 -ignore_tns
set_dont_touch_network -no_propagate [get_ports in1]
set_units -voltage mV -current uA -power nW
set_operating_conditions -max slow -max_library sdc_small -min typ -min_library sdc_small
set_wire_load_selection_group -min -library sdc_small by_area
set_false_path -comment {reset} -from rst
set_multicycle_path 2 -fall -rise_from clk -fall_through [get_pins u_xor/Z] -comment {two}
set_min_delay 0.1 -ignore_clock_latency -fall_from in1 -rise_through [get_nets w1] -fall_to [get_pins r1/D]
group_path -name mid -critical_range 1 -rise_from in2 -through [get_nets w2] -fall_to out1
set_clock_groups -asynchronous -allow_paths -group clk -group vclk
show_sdc
puts "--- collection options"
puts "all_inputs -no_clocks: [all_inputs -no_clocks]"
puts "all_registers -cells: [all_registers -cells] / -edge_triggered: [all_registers -edge_triggered] / -level_sensitive: <[all_registers -level_sensitive]>"
puts "get_attribute -class: [get_attribute -class port in1 direction] / [get_attribute -class cell r1 ref_name] / -quiet: <[get_attribute -quiet [get_ports clk] ref_name]>"
puts "get_lib_cells: [get_lib_cells -regexp {sdc_small/(BUF|INV)}] / [get_lib_cells -nocase */dff] / <[get_lib_cells -quiet */NONE]>"
puts "get_lib_pins: [get_lib_pins -regexp {sdc_small/DFF/(D|Q)}] / [get_lib_pins -nocase */buf/z] / [get_lib_pins -filter {direction == in} */AND2/*] / <[get_lib_pins -quiet */BUF/Q]>"
puts "get_libs: [get_libs -regexp {sdc_.*}] / [get_libs -nocase SDC*] / <[get_libs -quiet none]> / [get_libs -filter {file_name =~ *.lib}]"
puts "get_pins: [get_pins -regexp {r1/(D|Q)}] / [get_pins -nocase R2/q] / <[get_pins -quiet r9/*]>"
puts "get_nets: [get_nets -regexp {w[0-9]}] / [get_nets -nocase W1] / <[get_nets -filter {is_constant}]>"
puts "get_clocks: [get_clocks -regexp {(v|s).*}] / [get_clocks -nocase CLK]"
puts "no patterns under -regexp: [get_ports -regexp] / [get_clocks -regexp -filter {is_virtual}]"
puts "-regexp and -filter, no patterns: [get_cells -regexp -filter {ref_name =~ {D.*}}]"
puts "a blank filter keeps all: [get_ports -filter { }]"
