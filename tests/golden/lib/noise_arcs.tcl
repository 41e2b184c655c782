read_liberty rptlib_full.lib
report_lib rptlib_full -noise_arcs
