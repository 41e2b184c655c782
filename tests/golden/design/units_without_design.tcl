# No design: the one sentence, no banner, and status 1.
puts "status: [report_units]"
