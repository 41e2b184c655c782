# The help listing opens with the module's eighteen lines.
set text [exec [info nameofexecutable] -c help]
puts [join [lrange [split $text \n] 0 17] \n]
