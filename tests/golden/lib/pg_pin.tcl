read_liberty rptlib_full.lib
report_lib rptlib_full -pg_pin {INVX1 AN2}
