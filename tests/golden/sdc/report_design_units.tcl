# report_design prints the design rules in the units the constraints are
# read in, and names them: set_units's, else the default library's, else
# ns and pF without a library. Limits of 0.2 ns and 0.5 pF.
proc rules {title} {
  redirect -variable text { report_design }
  puts "--- $title"
  set lines [split $text \n]
  puts [join [lrange $lines [lsearch $lines "Design Rules:"] end] \n]
}
read_verilog sdc_small.v
link_design sdc_top
set_max_transition 0.2 [current_design]
set_max_capacitance 0.5 [current_design]
rules "no library"
read_liberty sdc_small.lib
link_design sdc_top
rules "the library's units"
set_units -time ps -capacitance fF
rules "set_units ps and fF"
