# -all wins over every later option; a missing name counts but is not reported
read_liberty rptlib_full.lib
report_lib rptlib_full -all -timing -power {INVX1 NOSUCH TBUF}
