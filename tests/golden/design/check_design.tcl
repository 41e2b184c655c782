# check_design tests for a current design and nothing else: status 1 and
# the sentence without one, nothing and status 0 with one, whatever the
# options.
puts "without design: [check_design]"
read_verilog example1.v
link_design
puts "with design: [check_design -summary]"
puts "with options: [check_design -no_warnings -one_level -nets]"
