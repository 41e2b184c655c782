# Bad constraint files. A file that cannot be read as text is refused with
# its name (and line) and sets nothing; an error inside a file names its
# line, and what the file set before that line stays set.
source bad/refused.tcl
source ../golden/sdc/show_sdc.tcl
create_clock -name clk -period 10 [get_ports clk]
set_load 0.1 q
proc sdc_text {} {
  set channel [file tempfile path]
  close $channel
  write_sdc $path
  set channel [open $path]
  set text [read $channel]
  close $channel
  file delete $path
  return $text
}
proc show_loads {} {
  foreach line [split [sdc_text] \n] {
    if {[string match set_load* $line]} { puts "  $line" }
  }
}
set before [sdc_text]
refused {read_sdc bad/no_such.sdc}
refused {read_sdc bad}
refused {read_sdc bad/sdc_nul.sdc}
refused {read_sdc bad/sdc_cut.sdc.gz}
refused {read_sdc /dev/zero}
if {[sdc_text] ne $before} { puts "CONSTRAINTS CHANGED" }
refused {read_sdc bad/sdc_unbalanced.sdc}
show_loads
refused {read_sdc bad/sdc_bad_name.sdc}
show_loads
refused {read_sdc bad/sdc_bad_proc.sdc}
show_loads
refused {read_sdc bad/sdc_binary.sdc}
show_loads
