# -from and -net exclude each other: the later name comes first in the
# message, and the report fails without raising an error.
redirect -variable text {set status [report_buffer_tree -from x -net y]}
puts -nonewline $text
puts "status: $status"
set status [report_buffer_tree -net y -from x]
puts "status: $status"
