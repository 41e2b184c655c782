# An error inside a procedure of the file names the line of the call.
proc loads {value} {
  set_load $value out1
}
loads 0.7
loads bad
set_load 0.6 q
