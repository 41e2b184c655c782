read_liberty rptlib_full.lib
read_liberty rptlib_plain.lib
report_lib rptlib_full -user_defined_data {INVX1 AN2}
report_lib rptlib_plain -user_defined_data
