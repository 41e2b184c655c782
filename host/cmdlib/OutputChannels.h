// Tcl's standard output and standard error as the shell's own channels:
// puts text then takes the same road as report text (so redirect and
// "> file" capture it, and the log keeps it), and standard error text is
// kept in the log as well.
#pragma once

namespace cmdlib {

// Replaces Tcl's stdout and stderr channels; call before the first
// interpreter is created, so that every interpreter sees them.
void InstallOutputChannels();

}  // namespace cmdlib
