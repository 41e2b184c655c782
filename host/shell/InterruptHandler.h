// Ctrl-C in the shell. During a command the first press asks the command to
// stop at its next safe point (a Tcl script between two commands, a reader
// between statements, a report between objects), which then fails with
// "Interrupted". A second press within a second, while the first is not yet
// answered, ends the shell (status 130). At the prompt the line editor
// clears the line instead.
#pragma once

#include <tcl.h>

namespace shell {

void InstallInterruptHandler(Tcl_Interp* interp);

// While the prompt waits for a line, Ctrl-C is the prompt's business.
void SetAtPrompt(bool at_prompt);
// Whether Ctrl-C was pressed at the prompt since the last call (and forgets it).
bool TakePromptInterrupt();
// Called (outside the signal handler) when Ctrl-C is pressed at a prompt
// that reads lines while Tcl's event loop turns (tclreadline).
void SetPromptInterruptHook(void (*hook)());

}  // namespace shell
