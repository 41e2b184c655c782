# the em form prints what the noise form prints
read_liberty rptlib_full.lib
report_lib rptlib_full -noise {INVX1 DFFRS}
report_lib rptlib_full -em {INVX1 DFFRS}
