# -operating_condition wins over -op_cond_name
read_liberty rptlib_full.lib
report_lib rptlib_full -operating_condition -op_cond_name slow
report_lib rptlib_full -op_cond_name slow
