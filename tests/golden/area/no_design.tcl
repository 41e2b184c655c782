# Without a design the report refuses with its own message and fails.
puts "status [report_area]"
