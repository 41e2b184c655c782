// redirect ?-append? ?-tee? ?-variable? TARGET SCRIPT: runs SCRIPT and keeps
// the text it printed (reports, messages, puts to stdout) in a file or a
// variable.
#include <string>

#include "cmdlib/HostCommands.h"
#include "cmdlib/OutputCapture.h"
#include "cmdlib/TclCmd.h"
#include "msg/SafeText.h"

namespace shell {
namespace {

class RedirectCmd : public cmdlib::TclCmd {
 public:
  RedirectCmd() : TclCmd("redirect", "Send the text a script prints to a file or a variable") {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("append", "Append to the file or variable instead of replacing it", false,
               ValueType::kFlag, std::any());
    addOptions("tee", "Also show the text on the screen", false, ValueType::kFlag, std::any());
    addOptions("variable", "The target names a Tcl variable, not a file", false, ValueType::kFlag,
               std::any());
    addOptions("target", "File name, or variable name with -variable", true, ValueType::kString,
               std::any());
    addOptions("script", "Commands whose text is captured", true, ValueType::kString, std::any());
  }

  // The result is that of the script; its error is raised after the text
  // is saved.
  int run(Tcl_Interp* interp) override {
    if (getOptionCount("script") == 0) return Fail(interp, "expected a target and a script");
    const std::string target = StringOption("target");
    const bool append = FlagOption("append");
    const bool to_variable = FlagOption("variable");
    Tcl_Obj* script = Tcl_NewStringObj(StringOption("script").c_str(), -1);
    Tcl_IncrRefCount(script);

    cmdlib::OutputCapture capture(FlagOption("tee"));
    std::string error;
    // The file is opened first: a target that cannot be written fails
    // before the script runs, not after its text is lost.
    if (!to_variable && !capture.OpenFile(target, append, error)) {
      capture.Finish();
      Tcl_DecrRefCount(script);
      return Fail(interp, error);
    }
    const int code = Tcl_EvalObjEx(interp, script, 0);
    Tcl_DecrRefCount(script);
    const bool written = capture.Finish();
    if (!to_variable) {
      if (!written && code == TCL_OK) return Fail(interp, "cannot write '" + target + "'");
      return code;
    }
    Tcl_Obj* previous = append ? Tcl_GetVar2Ex(interp, target.c_str(), nullptr, 0) : nullptr;
    std::string value = previous ? std::string(Tcl_GetString(previous)) : std::string();
    value += msg::ValidText(capture.Text());  // names may hold any byte
    Tcl_Obj* result = Tcl_GetObjResult(interp);
    Tcl_IncrRefCount(result);
    if (!Tcl_SetVar2Ex(interp, target.c_str(), nullptr,
                       Tcl_NewStringObj(value.data(), static_cast<int>(value.size())),
                       TCL_LEAVE_ERR_MSG)) {
      Tcl_DecrRefCount(result);
      return TCL_ERROR;
    }
    Tcl_SetObjResult(interp, result);
    Tcl_DecrRefCount(result);
    return code;
  }
};

cmdlib::HostCommandRegistrar registrar([] { new RedirectCmd(); });

}  // namespace
}  // namespace shell
