// printvar ?PATTERN?: prints global variables as name = "value".
#include <algorithm>
#include <string>
#include <vector>

#include "cmdlib/HostCommands.h"
#include "cmdlib/TclCmd.h"
#include "msg/ResultChannel.h"

namespace shell {
namespace {

class PrintvarCmd : public cmdlib::TclCmd {
 public:
  PrintvarCmd() : TclCmd("printvar", "Print global variables and their values") {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("pattern", "Variable name or glob pattern, * by default", true, ValueType::kString,
               std::any());
  }

  // Arrays print one line per element, name(key) = "value". Nothing
  // matched is an error.
  int run(Tcl_Interp* interp) override {
    std::string pattern = StringOption("pattern");
    if (pattern.empty()) pattern = "*";
    Tcl_Obj* words[2] = {Tcl_NewStringObj("::info", -1), Tcl_NewStringObj("globals", -1)};
    std::vector<std::string> names = Strings(interp, words, 2);
    names.erase(std::remove_if(names.begin(), names.end(),
                               [&](const std::string& name) {
                                 return !Tcl_StringMatch(name.c_str(), pattern.c_str());
                               }),
                names.end());
    if (names.empty()) return Fail(interp, "no variable matches '" + pattern + "'");
    std::sort(names.begin(), names.end());
    std::string text;
    for (const std::string& name : names) {
      if (Tcl_GetVar2Ex(interp, name.c_str(), nullptr, TCL_GLOBAL_ONLY)) {
        text += Line(name, Tcl_GetVar(interp, name.c_str(), TCL_GLOBAL_ONLY));
        continue;
      }
      Tcl_Obj* array[3] = {Tcl_NewStringObj("::array", -1), Tcl_NewStringObj("names", -1),
                           Tcl_NewStringObj(("::" + name).c_str(), -1)};
      std::vector<std::string> keys = Strings(interp, array, 3);
      std::sort(keys.begin(), keys.end());
      for (const std::string& key : keys) {
        const char* value = Tcl_GetVar2(interp, name.c_str(), key.c_str(), TCL_GLOBAL_ONLY);
        text += Line(name + "(" + key + ")", value ? value : "");
      }
    }
    msg::WriteResult(text);
    Tcl_ResetResult(interp);
    return TCL_OK;
  }

 private:
  static std::string Line(const std::string& name, const std::string& value) {
    return name + " = \"" + value + "\"\n";
  }

  // The elements of the list a command returns (nothing on error).
  static std::vector<std::string> Strings(Tcl_Interp* interp, Tcl_Obj** words, int count) {
    std::vector<std::string> items;
    for (int i = 0; i < count; ++i) Tcl_IncrRefCount(words[i]);
    Tcl_InterpState saved = Tcl_SaveInterpState(interp, TCL_OK);
    if (Tcl_EvalObjv(interp, count, words, TCL_EVAL_GLOBAL) == TCL_OK) {
      int length = 0;
      Tcl_Obj** elements = nullptr;
      if (Tcl_ListObjGetElements(nullptr, Tcl_GetObjResult(interp), &length, &elements) == TCL_OK)
        for (int i = 0; i < length; ++i) items.emplace_back(Tcl_GetString(elements[i]));
    }
    Tcl_RestoreInterpState(interp, saved);
    for (int i = 0; i < count; ++i) Tcl_DecrRefCount(words[i]);
    return items;
  }
};

cmdlib::HostCommandRegistrar registrar([] { new PrintvarCmd(); });

}  // namespace
}  // namespace shell
