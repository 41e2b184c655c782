# Constraints in the net reports: a wire-load model and mode set by SDC name
# the model's library and its operating conditions, and the model gives the
# wire figures (fan-out 3 lies between the model's entries for 2 and 4);
# set_load -wire_load on an input port adds to the net it drives in
# report_net (not in report_net_fanout).
read_liberty conn_small.lib
read_verilog conn_small.v
link_design top
set_wire_load_model -name large
set_wire_load_mode enclosed
set_load -wire_load 0.1 [get_ports in1]
report_net {in1 in2 n0 out2}
report_net_fanout {in1 n0}
