// Makes the commands of the command table callable from a Tcl interpreter.
#pragma once

#include <tcl.h>

#include <string_view>

namespace cmdlib {

// Creates a Tcl command for every command in the table that has none yet.
void BindCommands(Tcl_Interp* interp);

// A new Tcl string of `text` made valid UTF-8 without NUL (msg::ValidText):
// every text handed to Tcl goes through here, since a name or a message that
// quotes a file's bytes would otherwise make `puts` fail or stop short.
Tcl_Obj* NewTextObj(std::string_view text);

// Flushes what Tcl's puts buffered, then C's standard output, so that script
// text and report text come out in the order they were written.
void FlushOutputs();

}  // namespace cmdlib
