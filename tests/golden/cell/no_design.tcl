# Without a design nothing but the complaint, and status 1.
puts "status [report_cell]"
puts "bus status [report_bus]"
