# report_constraint with every design rule and hold violated, over the
# two-register design without wire loads. By hand (ns, pF): the drivers'
# loads are clk 0.04 (r1/CK, r2/CK), in1 0.01 (u1/A), u1/Z 0.01 (r1/D),
# r1/Q 0.02 (u2/A), u2/Z 0.01 (r2/D), r2/Q 0.01 (u3/A), u3/Z and out1
# nothing; so against 0.012 clk and r1/Q are too much, and in1, u1/Z,
# u2/Z, r2/Q (0.01) and u3/Z, out1 (0) too little. Fan-out loads: clk 2
# (two pins), r1/Q 2 (INV/A's fanout_load) against 1. Hold at r2/D: 0.34
# against 0.02 + 0.5 of uncertainty. The slews meet the library's limits
# (1.0; 0.5 at DFF/Q): r1/Q 0.04 is the closest, 0.46 below its 0.5.
# Last, the hold violator with its path, the uncertainty on the capture side.
source ../golden/timing/timer_setup.tcl
set_max_capacitance 0.012 [current_design]
set_min_capacitance 0.012 [current_design]
set_max_fanout 1 [current_design]
set_clock_uncertainty -hold 0.5 [get_clocks clk]
report_constraint -max_capacitance -min_capacitance -max_fanout -min_delay -max_transition -significant_digits 3
report_constraint -all_violators -max_capacitance -min_capacitance -max_fanout -min_delay -max_transition -significant_digits 3
report_constraint -max_fanout -significant_digits 0
report_constraint -all_violators -verbose -min_delay
