# no library, an unknown library, an unknown operating condition: each
# returns 1; the first two print their complaint and the usage, the last
# prints nothing at all.
read_liberty rptlib_full.lib
puts "no lib: [report_lib]"
puts "bad lib: [report_lib nosuchlib]"
puts "bad condition: [report_lib rptlib_full -op_cond_name nosuch]"
