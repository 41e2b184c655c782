# A Tcl error that escapes ends the script with status 1.
puts "before"
error "stopped here"
puts "never"
