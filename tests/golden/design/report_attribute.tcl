# report_attribute prints nothing and succeeds, with or without a design.
report_attribute -cell r1
read_verilog example1.v
link_design
report_attribute -net u1z
puts "report_attribute: ok"
