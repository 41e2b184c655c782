// Reads a call's arguments against a command's declared options.
#pragma once

#include <string>
#include <vector>

#include "cmdlib/CommandState.h"

namespace cmdlib {

struct ParseOutcome {
  bool ok = true;
  bool help = false;  // -help was given: print the usage and nothing else
  std::string error;  // when !ok: "<command>: <what is wrong>"
};

// Options by dash name or unique prefix; positional options in declaration
// order; a string-list option takes a Tcl list, and a trailing string-list
// positional also takes every further bare argument. Fills state.parsed.
ParseOutcome ParseArguments(CommonCmd::State& state, const std::vector<std::string>& args);

// Splits a Tcl list; false when the text is not a well-formed list.
bool SplitTclList(const std::string& text, std::vector<std::string>& items);

}  // namespace cmdlib
