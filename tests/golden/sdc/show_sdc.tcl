# Sourced by the constraint cases: reads the small library and design, and
# defines show_sdc, which prints what write_sdc writes.
read_liberty sdc_small.lib
read_verilog sdc_small.v
link_design sdc_top
proc show_sdc {} {
  set channel [file tempfile path]
  close $channel
  write_sdc $path
  set channel [open $path]
  puts -nonewline [read $channel]
  close $channel
  file delete $path
}
