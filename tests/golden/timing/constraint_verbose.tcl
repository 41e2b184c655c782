# report_constraint with a path group whose name does not fit the column:
# the row goes on a second line unless -nosplit; -verbose adds the worst
# path of each group.
source ../golden/timing/timer_setup.tcl
group_path -name a_group_whose_name_is_rather_long -to [get_ports out1]
report_constraint -max_delay -significant_digits 3
report_constraint -max_delay -significant_digits 3 -nosplit
report_constraint -min_delay -verbose
