read_liberty rptlib_full.lib
report_lib rptlib_full -power_label
report_lib rptlib_full -timing_label
