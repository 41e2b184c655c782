read_liberty rptlib_plain.lib
report_lib rptlib_plain -timing BUFX2
