# redirect captures the result channel into a variable or a file; the
# script's result passes through, and after an error inside the script the
# channel is the screen again.
set status [redirect -variable text {report_buffer_tree -from a -net b}]
puts "status: $status"
puts -nonewline "captured: $text"
redirect -append -variable text {report_buffer_tree -net b -from a}
puts "lines: [llength [split [string trimright $text \n] \n]]"

close [file tempfile path]
redirect $path {report_buffer_tree -from a -net b}
set f [open $path]
puts -nonewline "file: [read $f]"
close $f
file delete $path

puts "caught: [catch {redirect -variable lost {report_buffer_tree -from a -net b; error boom}} m] $m"
puts "kept: [string length $lost]"
report_buffer_tree -from a -net b
puts "caught: [catch {redirect -bogus x {}} m] $m"
puts "caught: [catch {redirect x} m] $m"
