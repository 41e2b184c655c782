# report_attribute prints nothing and succeeds, with or without a design.
puts "without design: [report_attribute -cell r1]"
read_verilog example1.v
link_design
puts "with design: [report_attribute -net u1z]"
