# Without a current design the connectivity reports say so and fail.
puts "status: [get_fanin_pins x]"
puts "status: [get_fanout_pins x]"
puts "status: [report_buffer_tree -net x]"
puts "status: [report_net]"
puts "status: [report_net_fanout]"
