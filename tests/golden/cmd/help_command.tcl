# help CMD prints one command's usage, the module's and the shell's alike;
# an unknown name or a second argument is an error.
help report_bus
help report_units
help redirect
foreach call {{help no_such_cmd} {help report_bus extra}} {
  catch $call message
  puts "error: $message"
}
