# Cones over gcd: the fan-in of a flop's data pin back to flops and ports,
# and the fan-out of an input port forward to flops' data pins.
read_liberty sky130hd_tt.lib.gz
read_verilog gcd_sky130hd.v
link_design gcd
get_fanin_pins -level 3 _411_/D
get_fanout_pins -level 3 req_val
