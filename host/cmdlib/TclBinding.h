// Makes the commands of the command table callable from a Tcl interpreter.
#pragma once

#include <tcl.h>

namespace cmdlib {

// Creates a Tcl command for every command in the table that has none yet.
void BindCommands(Tcl_Interp* interp);

// Flushes what Tcl's puts buffered, then C's standard output, so that script
// text and report text come out in the order they were written.
void FlushOutputs();

}  // namespace cmdlib
