# report_timing's -from, -through and -to read names of cells, nets and
# pins with the separator set_hierarchy_separator gave, "/" still taken;
# the report prints "/". The two-register design of report_timing_select:
# r1/CK to r2/D has a slack of 1.54 (max) and 0.32 (min, r2/D arriving at
# 0.34 against a hold of 0.02).
source ../golden/timing/timer_setup.tcl
set_hierarchy_separator .
report_timing -from r1.CK -to r2.D -path_type summary
report_timing -through u2.Z -path_type end -delay_type min
report_timing -from r1/CK -through [list u2.A] -to r2/D -path_type summary
puts [catch {report_timing -to r9.D} message]
puts $message
