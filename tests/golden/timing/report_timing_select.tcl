# report_timing's selections over the two-register design. By hand (ns):
# r1/Q 0.3, u2 (INV) 0.05 rising with a slew of 0.02, 0.04 falling with
# 0.03, so r2/D arrives at 0.35 (setup 0.1 + 0.5 * 0.02, required 1.89) or
# 0.34 (hold 0.02); in1 reaches r1/D at 0.5 + 0.25 against 2 - 0.235;
# r2/Q reaches out1 at 0.3 + 0.12 against 2 - 1.7. A group of group_path
# and a default group, a clock as -from, -through in turn (a net, then a
# pin of it; no path runs from n1 on to u2/A), -through the pins paths
# start from, and options that name nothing.
source ../golden/timing/timer_setup.tcl
group_path -name to_r2 -to [get_pins r2/D]
report_timing -through [get_pins u2/Z] -path_type summary -max_paths 5
report_timing -through [get_nets q1] -through [get_pins u2/A] -path_type end -delay_type min
report_timing -through [get_nets n1] -through [get_pins u2/A]
report_timing -through {r2/Q in1} -path_type summary -max_paths 5
report_timing -group {to_r2 **default**} -path_type end -max_paths 5
report_timing -from [get_clocks clk] -group clk -path_type summary -max_paths 5 -significant_digits 3
puts [catch {report_timing -group {clk nosuch}} message]
puts $message
puts [catch {report_timing -through [get_nets nosuch]} message]
puts $message
