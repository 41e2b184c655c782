# After a re-link the store finds its objects again by name: constraints on
# objects that still exist are kept, the others dropped with one warning
# each. A library read again is followed by name.
read_liberty sdc_small.lib
read_verilog sdc_relink.v
link_design relink_top
create_clock -name clk -period 10 [get_ports clk]
create_clock -name inner -period 5 [get_pins {u1/$1}]
set_input_delay 1 -clock clk [get_ports a]
set_input_delay 0.5 -clock clk -reference_pin [get_pins {u1/$1}] -add_delay [get_ports a]
set_output_delay 2 -clock inner [get_ports y]
set_case_analysis 0 [get_pins {u1/$0}]
set_load 0.1 [get_nets n1]
set_driving_cell -lib_cell BUF [get_ports a]
set_false_path -through [get_pins {u1/$0}] -to [get_ports y]
set_false_path -through [list [get_pins {u1/$0}] [get_pins u0/Z]]
set_disable_timing [get_cells u1]
set kept [get_ports a]
puts "before: clocks [all_clocks], collection [get_object_name $kept]"
read_verilog sdc_relink_sub.v
link_design relink_top
puts "after: clocks [all_clocks], collection [get_object_name $kept]"
read_liberty sdc_small.lib
set channel [file tempfile path]
close $channel
write_sdc $path
set channel [open $path]
puts -nonewline [read $channel]
close $channel
file delete $path
