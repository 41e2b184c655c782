read_liberty rptlib_noswap.lib
report_lib rptlib_noswap
# an option that the report does not consult gives the default form
report_lib rptlib_noswap -fpga
