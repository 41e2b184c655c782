// The shell's own commands: help and redirect.
#pragma once

#include <tcl.h>

#include "shell/ModuleLoader.h"

namespace shell {

void CreateShellCommands(Tcl_Interp* interp, const LoadedModule* module);

}  // namespace shell
