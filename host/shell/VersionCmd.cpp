// version, also typed as -version: the shell's version as the result.
#include "cmdlib/HostCommands.h"
#include "cmdlib/TclCmd.h"
#include "shell/ShellCommands.h"

namespace shell {
namespace {

class VersionCmd : public cmdlib::TclCmd {
 public:
  VersionCmd() : TclCmd("version", "The version of the shell (also: -version)") {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  }

  int run(Tcl_Interp* interp) override {
    Tcl_SetObjResult(interp, Tcl_NewStringObj(kVersion, -1));
    return TCL_OK;
  }
};

cmdlib::HostCommandRegistrar registrar([] { new VersionCmd(); });

}  // namespace
}  // namespace shell
