# The simulation of gcd read as SAIF and as VCD: every net of the design
# annotated from each, the pins of leaf cells passed over, and the same
# figures from both (the two files come from one simulation).
read_liberty sky130hd_tt.lib.gz
read_verilog gcd_sky130hd.v
link_design gcd
read_sdc gcd_sky130hd.sdc
report_switching_activity
set nets [get_nets {clk req_val reset _000_ _003_ dpath.a_lt_b$in1[9] req_msg[3] resp_msg[7]}]
read_saif gcd_sky130hd.saif.gz -instance gcd_tb/gcd1
redirect -variable saif { report_switching_activity [get_nets *] }
report_switching_activity $nets
read_vcd gcd_sky130hd.vcd.gz -scope gcd_tb.gcd1
redirect -variable vcd { report_switching_activity [get_nets *] }
report_switching_activity $nets
# Net by net, the figures agree.
set differ 0
foreach s [split $saif "\n"] v [split $vcd "\n"] {
  if {[regsub { saif$} $s {} s] && [regsub { vcd$} $v {} v] && $s ne $v} { incr differ }
}
puts "nets whose figures differ: $differ"
