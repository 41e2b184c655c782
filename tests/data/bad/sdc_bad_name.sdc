# A command name that does not exist, inside a loop body: its line is
# named, not the loop's.
foreach port {out1 out2} {
  set_load 0.4 $port
  if {$port eq "out2"} {
    set_lod 0.5 $port
  }
}
set_load 0.6 q
