// The shell's own commands (help, redirect, source, exit, version, app
// variables, message counts) and what they share with the prompt.
#pragma once

#include <tcl.h>

#include <functional>
#include <string>

#include "shell/ModuleLoader.h"

namespace shell {

constexpr const char* kVersion = "kelvo 0.1.0";

struct Session {
  static Session& Get();
  const LoadedModule* module = nullptr;  // its help listing
  std::function<void()> before_exit;     // saves the history, ends the log
};

// Prepares the interpreter for the shell's commands (Tcl's own source is
// kept under another name) and creates them; before BindCommands.
void PrepareShellCommands(Tcl_Interp* interp, const LoadedModule* module);
// After BindCommands: aliases such as "-version".
void FinishShellCommands(Tcl_Interp* interp);

// Ends the process with `status` the way exit does: flushes, saves, closes.
[[noreturn]] void ExitShell(int status);

}  // namespace shell
