# Bad calls raise a Tcl error that names the command and the option, and
# run nothing; a good prefix is accepted.
proc try {script} {
  if {[catch {uplevel 1 $script} message]} {
    puts "error: $message"
  } else {
    puts "ok: $message"
  }
}
try {report_net -foo}
try {report_net -s}
try {report_net -threshold}
try {report_net -threshold 1.5}
try {report_net -thresh abc}
try {report_units surplus}
try {report_bus -nosplit extra}
try {report_lib -op_cond_name}
try {report_buffer_tree -depth -3 -from a -net b}
try {report_buffer_tree -conn -hier -from a -net b}
try {report_cell -help -bogus}
