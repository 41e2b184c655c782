#include "shell/ShellCommands.h"

#include <cstdio>

#include "cmdlib/TclBinding.h"
#include "msg/SessionLog.h"

namespace shell {

Session& Session::Get() {
  static Session session;
  return session;
}

void PrepareShellCommands(Tcl_Interp* interp, const LoadedModule* module) {
  Session::Get().module = module;
  // Tcl's source stays reachable for the plain case, which keeps Tcl's own
  // file and line bookkeeping.
  Tcl_Eval(interp, "rename ::source ::tcl::kelvo_source");
}

void FinishShellCommands(Tcl_Interp* interp) {
  Tcl_Eval(interp, "interp alias {} -version {} version");
}

void ExitShell(int status) {
  cmdlib::FlushOutputs();
  if (Session::Get().before_exit) Session::Get().before_exit();
  std::fflush(stderr);
  msg::CloseLog();
  Tcl_Exit(status);
}

}  // namespace shell
