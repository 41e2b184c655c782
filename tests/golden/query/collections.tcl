# Collections remember the kind of each object and read as the list of full
# names; the options of the get_* commands; the collection commands.
read_liberty sdc_small.lib
read_verilog sdc_small.v
link_design sdc_top
create_clock -period 10 [get_ports clk]
create_clock -name vclk -period 5
puts "--- a port and a net named clk"
set port [get_ports clk]
set net [get_nets clk]
puts "$port $net: [get_attribute $port object_class] [get_attribute $net object_class]"
puts "list commands: llength [llength [get_cells *]], lindex [lindex [get_cells *] 1], foreach:"
foreach name [get_ports in*] { puts "  $name" }
puts "--- patterns and options"
puts "hierarchical: [get_cells -hierarchical u_*]"
puts "full path: [get_cells b*/u_*]"
puts "regexp: [get_ports -regexp {(in|out)[0-9]}]"
puts "regexp bus bits: [get_ports -regexp {data\[[01]\]}]"
puts "nocase: [get_cells -nocase U_*]"
puts "bus name: [get_ports data]"
puts "pins: [get_pins r*/*]"
puts "quiet: [get_nets -quiet nothing]"
puts "not quiet: [get_nets nothing]"
puts "--- -of_objects"
puts "pins of cells: [get_pins -of_objects [get_cells {r1 u_xor}]]"
puts "pins of a net: [get_pins -of_objects [get_nets w1]]"
puts "nets of pins: [get_nets -of_objects [get_pins u_xor/*]]"
puts "nets of a port: [get_nets -of_objects [get_ports data]]"
puts "cells of pins: [get_cells -of_objects [get_pins -hierarchical */A]]"
puts "pins by their own name: [get_pins -hierarchical A] / [llength [get_pins -hierarchical *]] / [get_pins A]"
puts "cells of a net: [get_cells -of_objects w1]"
puts "ports of a net: [get_ports -of_objects [get_nets in1]]"
puts "lib cells of cells: [get_lib_cells -of_objects [get_cells -hierarchical u_*]]"
puts "lib pins of a lib cell: [get_lib_pins -of_objects [get_lib_cells */DFF]]"
puts "lib pins of pins: [get_lib_pins -of_objects [get_pins r1/*]]"
puts "--- -filter"
puts "==: [get_cells -hierarchical -filter {ref_name == AND2}]"
puts "!=: [get_cells -filter {ref_name != DFF}]"
puts "=~: [get_ports -filter {full_name =~ data*}]"
puts "!~: [get_ports -filter {full_name !~ *1 && direction == in}]"
puts "||: [get_cells -filter {is_sequential || ref_name == BUF}]"
puts "( ): [get_cells -hierarchical -filter {(ref_name == INV || ref_name == AND2) && full_name =~ b2/*}]"
puts "numbers: [get_lib_cells -filter {area >= 3} */*]"
puts "bare boolean and !: [get_cells -filter {!is_hierarchical && !is_sequential}]"
puts "quoted value: [get_pins -filter {direction == "out"} u_*/*]"
puts "clocks: [get_clocks -filter {is_virtual == true}] [get_clocks -filter {period > 6}]"
foreach bad {{ref_name ==} {(ref_name == A} {colour == red} {ref_name == A &&}} {
  if {[catch {get_cells -filter $bad} message]} { puts $message }
}
puts "--- collection commands"
puts "sizeof: [sizeof_collection [get_cells *]] [sizeof_collection [get_cells -quiet none]]"
foreach_in_collection cell [get_cells -hierarchical *] {
  if {[get_attribute $cell is_hierarchical]} continue
  puts -nonewline "[get_object_name $cell]:[get_attribute $cell ref_name] "
}
puts ""
puts "get_attribute of several: [get_attribute [get_ports {in1 out1 data[0]}] direction]"
puts "get_object_name: [get_object_name [get_clocks *]]"
puts "filter_collection: [filter_collection [get_cells *] {ref_name =~ D*}]"
puts "add_to_collection: [add_to_collection [get_ports in1] [get_nets in1]] / [add_to_collection -unique [get_ports in1] [get_ports {in1 in2}]]"
puts "remove_from_collection: [remove_from_collection [all_inputs] [get_ports {clk data*}]] / [remove_from_collection [get_ports clk] [get_nets clk]] / -intersect [remove_from_collection -intersect [get_cells *] {r2 r1}]"
puts "index_collection: [index_collection [get_cells *] 2]"
puts "all_registers: [all_registers] / [all_registers -clock_pins] / [all_registers -data_pins] / [all_registers -output_pins]"
puts "all_registers -clock clk: [all_registers -clock clk] / vclk: [all_registers -clock vclk]"
puts "get_libs [get_libs], lib cells [get_lib_cells sdc_small/*]"
if {[catch {get_attribute [get_ports clk] ref_name} message]} { puts $message }
if {[catch {get_cells -regexp {(} } message]} { puts $message }
if {[catch {index_collection [get_cells *] 9} message]} { puts $message }
puts "--- a pattern with / under -hierarchical matches below any level"
read_verilog query_deep.v
link_design deep_top
puts "cells: [get_cells l1/*] / -hierarchical: [get_cells -hierarchical l1/*]"
puts "pins: [get_pins -hierarchical l1/u_inv/A] / nets: [get_nets -hierarchical l2/*]"
