# Messages that quote what a file holds: bytes that are not UTF-8 come out
# escaped, so that puts prints them; a huge token is cut short. Large and
# endless inputs are made here, in a folder of the test's own.
source bad/refused.tcl
set dir [file join [expr {[info exists env(TMPDIR)] ? $env(TMPDIR) : "/tmp"}] kelvo_bad_[pid]]
file mkdir $dir
proc write {name text} {
  set path [file join $::dir $name]
  set f [open $path w]
  puts -nonewline $f $text
  close $f
  return $path
}

refused {read_verilog bad/bad_utf8.v}
refused {read_verilog bad/v_lone_cont.v}

set token [write token.v "module m (a);\n  input a;\nendmodule\n[string repeat x 10000000]\n"]
catch {read_verilog $token} message
puts [string map [list $dir DIR] $message]

proc cell {function} {
  return "library(l){\n cell(B){ pin(A){direction:input;} pin(Y){direction:output; function:\"$function\";} }\n}\n"
}
set parens [write parens.lib [cell "[string repeat ( 20000]A[string repeat ) 20000]"]]
catch {read_liberty $parens} message
puts [string map [list $dir DIR] $message]
puts [read_liberty [write nots.lib [cell "[string repeat ! 200001]A"]]]
puts [get_lib_cells l/*]
set ands [string repeat "A " 140000]
puts [read_liberty [write ands.lib [cell $ands]]]

# A FIFO: a whole gzip library read through it, then an endless stream
# stopped at the input limit.
set fifo [file join $dir fifo]
exec mkfifo $fifo
exec sh -c "cat nangate45_typ.lib.gz > $fifo" &
puts [read_liberty $fifo]
set env(KELVO_MAX_INPUT_BYTES) 1M
exec sh -c "yes 'module' > $fifo 2>/dev/null" &
catch {read_verilog $fifo} message
puts [string map [list $dir DIR] $message]
set env(KELVO_MAX_INPUT_BYTES) lots
catch {read_verilog bad/empty.v} message
puts $message
unset env(KELVO_MAX_INPUT_BYTES)
file delete -force $dir
