read_liberty rptlib_full.lib
report_lib rptlib_full -k_factors
report_lib rptlib_full -k_factors {AN2 INVX1}
