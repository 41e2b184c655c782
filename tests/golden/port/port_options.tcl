# report_port options and names: -nosplit and -only_physical give a notice
# each and a banner line, -physical a banner line only; -significant_digits
# sets the digits of every figure but the number of points; unknown names
# are reported and passed over, a name given twice gives two rows, a bus
# name is no port; no port found prints nothing and gives 1; -verbose over
# inputs only has no output delay table, over outputs only has no input
# delay table but the other input tables, empty.
read_liberty port_small.lib
read_verilog port_small.v
link_design port_top
read_sdc port_small.sdc
puts "status: [report_port -nosplit -only_physical -physical {in3 out3}]"
puts "status: [report_port -verbose -significant_digits 4 {in1 in7 out1 out3}]"
puts "status: [report_port {nosuch in4 data in4 other}]"
puts "status: [report_port {nosuch data}]"
puts "status: [report_port -verbose {in2 data[0]}]"
puts "status: [report_port -verbose {out2 out4}]"
