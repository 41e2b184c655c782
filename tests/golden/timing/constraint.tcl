# report_constraint over the two-register design: every constraint in one
# table, the violators of each, a selection of constraints with three
# digits, a constraint this timer does not check, nothing violated, and a
# number of digits out of range. By hand (ns, pF): out1 arrives at 0.3 +
# 0.12 against 2 - 1.7; the hold check at r2/D sees 0.34 against 0.02; u1/Z
# and r1/D have a slew of 0.27 against 0.2; r1/Q drives 0.02 against its
# library limit 0.1; r2/Q drives 0.01 against its min 0.004; r1/Q's fan-out
# load of 2 against 4; the cells take 2 + 6 + 1 + 6 + 2 against 15.
source ../golden/timing/timer_setup.tcl
set_max_transition 0.2 [current_design]
set_max_area 15
report_constraint
report_constraint -all_violators
report_constraint -max_delay -max_area -min_capacitance -significant_digits 3
report_constraint -min_period
report_constraint -min_delay -all_violators
puts [catch {report_constraint -significant_digits 14} message]
puts $message
