# Without a design nothing but the complaint.
puts "status [report_reference]"
