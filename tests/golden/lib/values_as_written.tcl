# Library numbers print as the library writes them, not as the nearest
# single-precision value: capacitances 25, 46.08, 60.5774 and a limit of 500
# (in fF), wire-load 0.1774 and 6.283688 and a threshold of 33.3 under eight
# decimals. Defaults print in the library's own units: a cell leakage of
# 2.5 nW as 2.500000, a max_capacitance of -1 as unset (-1.000000), a set
# max_transition as "undefined". The condition's 1200 in a library of 1mV is
# 1.2 V: "Voltage :  1.2" unscaled in the summary, 1200.00 in its own block.
read_liberty rptlib_values.lib
report_lib rptlib_values -power
report_lib rptlib_values -timing
report_lib rptlib_values -op_cond_name typ_1v2
