read_liberty rptlib_full.lib
read_liberty rptlib_plain.lib
report_lib rptlib_full -full_table {DFFRS LATN STLAT CGATE INVX1}
report_lib rptlib_plain -full_table EDGEFF
