# report_timing over the two-register design. By hand (ns, pF): u1 (BUF)
# delays 0.1 + 0.5 * 0.1 + 10 * 0.01 = 0.25 with a slew of 0.05 + 0.2 * 0.1
# + 20 * 0.01 = 0.27 into r1/D (setup 0.15 + 0.5 * 0.17); r1/Q 0.3 with 0.04,
# u2 (INV) 0.05 rising, 0.04 falling (two paths to r2/D, setups 0.11 and
# 0.115); u3 (BUF) 0.1 + 0.5 * 0.04 into no load. The last full report
# shows r1/D's required time 2 - 0.235 in two digits on the setup row as in
# "data required time".
source ../golden/timing/timer_setup.tcl
report_timing
report_timing -delay_type min -path_type summary -max_paths 5
report_timing -path_type end -max_paths 5
report_timing -from [get_ports in1] -input_pins -nets -transition_time -capacitance -significant_digits 3
report_timing -to [get_pins r2/D] -nworst 2 -max_paths 2 -path_type summary -significant_digits 3
report_timing -to [get_pins r1/D]
