# read_spef over the two-register design: n1 (u1/Z to r1/D) takes 20 fF
# of wire, so u1 (BUF) delays 0.1 + 0.5 * 0.1 + 10 * (0.01 + 0.02) = 0.45
# with a slew of 0.05 + 0.02 + 20 * 0.03 = 0.67, and r1's setup grows to
# 0.15 + 0.5 * 0.57. A file naming a net and a pin the design lacks warns
# of each, and of the pin of q1 its connections leave out (u2/A), and
# annotates the rest (q1: 0.03 pF of wire, and u2/A's 0.02 still counted:
# r1/Q drives 0.05); a file with a syntax error
# changes nothing; a relink drops the annotations.
source ../golden/timing/timer_setup.tcl
puts "annotated [read_spef timer_small.spef]"
report_timing -from [get_ports in1] -capacitance -transition_time -nets -significant_digits 3
puts "annotated [read_spef timer_small_unknown.spef]"
report_timing -to [get_pins r2/D] -capacitance -significant_digits 3
puts [catch {read_spef timer_small_bad.spef} message]
puts $message
report_timing -from [get_ports in1] -path_type summary -significant_digits 3
puts [catch {read_spef no_such.spef} message]
puts $message
link_design tc
report_timing -from [get_ports in1] -path_type summary -significant_digits 3
