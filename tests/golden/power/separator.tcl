# report_power reads the names of instances and nets with the separator
# set_hierarchy_separator gave ("/" still taken) and prints them with "/".
# The figures of c/u1 and c/u2 are those of small_options' hierarchy table.
read_liberty power_small.lib
read_verilog power_small.v
link_design pw
create_clock -period 10 [get_ports clk]
set_hierarchy_separator .
report_power -cell -significant_digits 4 c.u1 c/u2
puts [catch {report_power -cell c.u9} message]
puts $message
