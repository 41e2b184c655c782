# report_port -verbose over gcd and sky130hd with the SDC of the example:
# one clock, input delays on every input but the clock, output delays on
# every output, input transitions on every input, nothing else.
read_liberty sky130hd_tt.lib.gz
read_verilog gcd_sky130hd.v
link_design gcd
read_sdc gcd_sky130hd.sdc
puts "status: [report_port -verbose]"
