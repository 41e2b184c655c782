# write_sdc writes what the store holds; a fresh shell that reads it writes
# the same text again, and so does this shell reading it once more.
source ../golden/sdc/show_sdc.tcl
read_sdc sdc_full.sdc
# A group without clocks reads back as a group without clocks.
set_clock_groups -name half_empty -logically_exclusive -group [get_clocks -quiet gone] -group vclk
set first [file tempfile first_path]
close $first
write_sdc $first_path
set second [file tempfile second_path]
close $second
exec [info nameofexecutable] ../golden/sdc/round_trip_reader.tcl $first_path $second_path
proc contents {path} {
  set channel [open $path]
  set text [read $channel]
  close $channel
  return $text
}
puts "fresh shell: [expr {[contents $first_path] eq [contents $second_path] ? {same} : {different}}]"
read_sdc $first_path
write_sdc $second_path
puts "read again: [expr {[contents $first_path] eq [contents $second_path] ? {same} : {different}}]"
file delete $first_path $second_path
show_sdc
