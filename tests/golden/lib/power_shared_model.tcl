# one power table for both edges is dumped once; a cell without any power
# data leaves its row open for the next cell
read_liberty rptlib_noswap.lib
report_lib rptlib_noswap -power
