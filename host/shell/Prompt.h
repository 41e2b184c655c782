// The interactive loop: reads commands (a command may take several lines)
// from a line reader, runs them, and shows results and errors.
#pragma once

#include <tcl.h>

#include "shell/LineReader.h"

namespace shell {

// Reads lines from standard input as they come (no prompt, no editing),
// for when standard input is not a terminal.
class PlainLineReader : public LineReader {
 public:
  Outcome Read(const std::string& prompt, std::string& line) override;
};

// Runs until the end of input. On a terminal, results are shown and an
// error shows its message; otherwise nothing is echoed, an error shows its
// trace, and the status is 1 if any command failed.
int RunPrompt(Tcl_Interp* interp, LineReader& reader, bool terminal);

}  // namespace shell
