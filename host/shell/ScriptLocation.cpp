#include "shell/ScriptLocation.h"

#include <map>
#include <vector>

#include "msg/HostMsg.h"

namespace shell {
namespace {

struct EchoedFile {
  std::string file;
  int line = 0;
  int frame_level = 0;  // Tcl's frame depth when the file began
};

std::map<std::string, std::string>& GivenNames() {
  static std::map<std::string, std::string> names;  // Tcl's name to the given one
  return names;
}

std::string Normalized(const std::string& path) {
  Tcl_Obj* given = Tcl_NewStringObj(path.c_str(), -1);
  Tcl_IncrRefCount(given);
  Tcl_Obj* normal = Tcl_FSGetNormalizedPath(nullptr, given);
  std::string name = normal ? Tcl_GetString(normal) : path;
  Tcl_DecrRefCount(given);
  return name;
}

std::vector<EchoedFile>& Echoed() {
  static std::vector<EchoedFile> files;
  return files;
}

// The innermost frame deeper than `above` that comes from a file, as
// {file line}; empty when none.
const char* kFindFrame =
    "::apply {{above} {\n"
    "  for {set l [info frame]} {$l > $above} {incr l -1} {\n"
    "    set f [info frame $l]\n"
    "    if {[dict exists $f file] && [dict exists $f line]} {\n"
    "      return [list [dict get $f file] [dict get $f line]]\n"
    "    }\n"
    "  }\n"
    "  return {}\n"
    "}}";

bool FindLocation(Tcl_Interp* interp, msg::Location& where) {
  const int above = Echoed().empty() ? 0 : Echoed().back().frame_level;
  Tcl_InterpState saved = Tcl_SaveInterpState(interp, TCL_OK);
  std::string script = std::string(kFindFrame) + " " + std::to_string(above);
  bool found = false;
  if (Tcl_Eval(interp, script.c_str()) == TCL_OK) {
    Tcl_Obj* result = Tcl_GetObjResult(interp);
    int count = 0;
    Tcl_Obj** items = nullptr;
    int line = 0;
    if (Tcl_ListObjGetElements(nullptr, result, &count, &items) == TCL_OK && count == 2 &&
        Tcl_GetIntFromObj(nullptr, items[1], &line) == TCL_OK) {
      where.file = Tcl_GetString(items[0]);
      auto given = GivenNames().find(where.file);
      if (given != GivenNames().end()) where.file = given->second;
      where.line = line;
      found = true;
    }
  }
  Tcl_RestoreInterpState(interp, saved);
  if (!found && !Echoed().empty()) {
    where.file = Echoed().back().file;
    where.line = Echoed().back().line;
    found = true;
  }
  return found;
}

int FrameLevel(Tcl_Interp* interp) {
  Tcl_InterpState saved = Tcl_SaveInterpState(interp, TCL_OK);
  int level = 0;
  if (Tcl_Eval(interp, "info frame") == TCL_OK)
    Tcl_GetIntFromObj(nullptr, Tcl_GetObjResult(interp), &level);
  Tcl_RestoreInterpState(interp, saved);
  return level;
}

}  // namespace

void RememberScriptName(const std::string& given) {
  GivenNames()[Normalized(given)] = given;
}

void InstallScriptLocation(Tcl_Interp* interp) {
  msg::SetLocationFinder([interp](msg::Location& where) { return FindLocation(interp, where); });
}

EchoedFileScope::EchoedFileScope(Tcl_Interp* interp, const std::string& file) {
  Echoed().push_back(EchoedFile{file, 0, FrameLevel(interp)});
}

EchoedFileScope::~EchoedFileScope() {
  Echoed().pop_back();
}

void EchoedFileScope::SetLine(int line) {
  Echoed().back().line = line;
}

}  // namespace shell
