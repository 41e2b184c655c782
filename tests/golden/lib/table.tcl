read_liberty rptlib_full.lib
read_liberty rptlib_plain.lib
report_lib rptlib_full -table
report_lib rptlib_plain -table
