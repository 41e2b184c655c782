# -verbose without -connections fails silently, also with -only_physical; no cell found fails.
read_liberty rpt_small.lib
read_verilog rpt_small.v
link_design top
puts "verbose [report_cell -verbose]"
puts "only_physical verbose [report_cell -only_physical -verbose]"
puts "none found [report_cell {nothing}]"
report_cell -only_physical th
