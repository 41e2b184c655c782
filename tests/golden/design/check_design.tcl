# check_design tests for a current design and nothing else.
if {[catch {check_design} message]} { puts "check_design failed: $message" }
read_verilog example1.v
link_design
check_design -summary
check_design -no_warnings -one_level -nets
puts "check_design: ok"
