# Constraints written as tools and engineers write them: the design made
# current, Tcl variables, expr, foreach and lappend between the commands.
current_design sdc_top
set clk_name core_clock
set clk_period 2.5
set io_fraction 0.2
create_clock -name $clk_name -period $clk_period [get_ports clk]
set_propagated_clock [get_clocks $clk_name]
set_clock_uncertainty 0.05 [get_clocks $clk_name]
set_clock_transition 0.08 [get_clocks $clk_name]
set io_delay [expr {$clk_period * $io_fraction}]
set data_inputs {}
foreach name {in1 in2 data*} {
  lappend data_inputs [get_ports $name]
}
set_input_delay $io_delay -clock $clk_name $data_inputs
set_input_delay [expr {$io_delay / 2}] -clock $clk_name -clock_fall -add_delay [get_ports in1]
set_output_delay $io_delay -clock $clk_name -reference_pin [get_pins u_ckbuf/Z] [all_outputs]
set_driving_cell -lib_cell BUF -pin Z -input_transition_rise 0.04 -input_transition_fall 0.05 [remove_from_collection [all_inputs] [get_ports clk]]
set_load [expr {4 * 0.01}] [all_outputs]
set_max_fanout 20 [current_design]
set_max_transition [expr {$clk_period / 10}] [current_design]
