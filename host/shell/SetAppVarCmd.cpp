// set_app_var NAME VALUE: changes one of the shell's settings.
#include <string>

#include "cmdlib/HostCommands.h"
#include "cmdlib/TclCmd.h"
#include "shell/AppVars.h"

namespace shell {
namespace {

class SetAppVarCmd : public cmdlib::TclCmd {
 public:
  SetAppVarCmd() : TclCmd("set_app_var", "Change a setting of the shell") {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("var", "Name of the setting", true, ValueType::kString, std::any());
    addOptions("value", "New value", true, ValueType::kString, std::any());
  }

  // The result is the new value.
  int run(Tcl_Interp* interp) override {
    if (getOptionCount("value") == 0) return Fail(interp, "expected a setting and a value");
    const std::string name = StringOption("var");
    const std::string value = StringOption("value");
    if (!AppVars::Get().Find(name))
      return Fail(interp, "'" + name + "' is not a setting of the shell");
    std::string error;
    if (!AppVars::Get().Set(interp, name, value, error)) return Fail(interp, error);
    Tcl_SetObjResult(interp, Tcl_NewStringObj(AppVars::Get().Find(name)->value.c_str(), -1));
    return TCL_OK;
  }
};

cmdlib::HostCommandRegistrar registrar([] { new SetAppVarCmd(); });

}  // namespace
}  // namespace shell
