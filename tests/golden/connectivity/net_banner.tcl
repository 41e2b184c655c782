# Every option of report_net has its banner line; -max_capacitance stands
# twice. -noflat -verbose on a top input port and a net behind the
# two-output buffer, with two digits.
read_liberty conn_small.lib
read_verilog conn_small.v
link_design top
report_net -nosplit -noflat -transition_times -only_physical -verbose -cell_degradation \
    -connections -physical -threshold 0 -min -max_toggle_rate -max_capacitance \
    -significant_digits 2 -scenarios {n4 in1}
