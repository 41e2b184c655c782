# Objects that do not exist and commands that are not modelled: warnings,
# and the file reads to its end.
create_clock -name clk -period 10 [get_ports {clk nosuch_port}]
set_load 0.1 {out1 nosuch_out out2}
set_input_delay 1 -clock nosuch_clock in1
set_driving_cell -lib_cell NOSUCH in2
set_timing_derate -early 0.9
set_timing_derate -late 1.1
set_min_pulse_width 0.5 [get_clocks clk]
set_false_path -from [get_ports nosuch_port] -to out1
set_load 0.2 [get_cells r1]
set_max_fanout 8 [current_design]
foreach port {nosuch_a nosuch_b} {
  set_load 0.3 $port
}
# Ports of the wrong direction are left out; the others in the list apply.
set_input_transition 0.1 [get_ports {in1 out1}]
set_output_delay 2 -clock clk [get_ports {in2 q}]
