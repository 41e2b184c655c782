# Instance, net and hierarchy tables, digits, and the names report_power
# refuses.
read_liberty power_small.lib
read_verilog power_small.v
link_design pw
create_clock -period 10 [get_ports clk]
# Rows come in the order the cells lie in memory: file order within one
# module, but where two modules' cells lie depends on the allocator, so the
# instances named are of one level.
report_power -cell -significant_digits 4 b0 b1 f1 c
report_power -net n1 nb clk
report_power -hierarchy -significant_digits 2
puts [catch {report_power -cell nosuch} message]
puts $message
puts [catch {report_power n1} message]
puts $message
puts [catch {report_power -significant_digits 0} message]
puts $message
