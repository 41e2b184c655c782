// get_app_var NAME, get_app_var -list ?PATTERN?: the shell's settings.
#include <string>

#include "cmdlib/HostCommands.h"
#include "cmdlib/TclCmd.h"
#include "shell/AppVars.h"

namespace shell {
namespace {

class GetAppVarCmd : public cmdlib::TclCmd {
 public:
  GetAppVarCmd() : TclCmd("get_app_var", "The value of a setting of the shell") {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("list", "The names of the settings that match VAR (a glob), not a value", false,
               ValueType::kFlag, std::any());
    addOptions("var", "Name of the setting", true, ValueType::kString, std::any());
  }

  int run(Tcl_Interp* interp) override {
    const std::string name = StringOption("var");
    if (FlagOption("list")) {
      const std::string pattern = name.empty() ? "*" : name;
      Tcl_Obj* names = Tcl_NewListObj(0, nullptr);
      for (const AppVar& var : AppVars::Get().All())
        if (Tcl_StringMatch(var.name.c_str(), pattern.c_str()))
          Tcl_ListObjAppendElement(nullptr, names, Tcl_NewStringObj(var.name.c_str(), -1));
      Tcl_SetObjResult(interp, names);
      return TCL_OK;
    }
    if (name.empty()) return Fail(interp, "expected the name of a setting");
    const AppVar* var = AppVars::Get().Find(name);
    if (!var) return Fail(interp, "'" + name + "' is not a setting of the shell");
    Tcl_SetObjResult(interp, Tcl_NewStringObj(var->value.c_str(), -1));
    return TCL_OK;
  }
};

cmdlib::HostCommandRegistrar registrar([] { new GetAppVarCmd(); });

}  // namespace
}  // namespace shell
