#include <dirent.h>
#include <sys/mman.h>
#include <tcl.h>
#include <unistd.h>

#include <cstdlib>
#include <set>
#include <string>

#include "FuzzInput.h"
#include "FuzzTargets.h"
#include "cmdlib/HostCommands.h"
#include "cmdlib/TclBinding.h"
#include "msg/SafeText.h"

namespace fuzz {

namespace {

// Tcl commands a constraint file may use here. The rest are taken away:
// those that reach files, processes, sockets or the event loop, those that
// change the loaded design, and those whose run time or memory a few bytes
// make unbounded (expr, if, while and for evaluate expressions such as
// 3**100000000; string repeat, lrepeat and format take sizes) and that
// would bury what the reader does under findings of Tcl's own.
const std::set<std::string>& Kept() {
  static const std::set<std::string> kept = {
      "set",   "unset",    "list",    "lindex",   "llength",       "lappend", "concat",
      "join",  "split",    "foreach", "incr",     "catch",         "error",   "return",
      "break", "continue", "info",    "read_sdc", "current_design"};
  return kept;
}

// The names the harness keeps: Tcl's listed above, and the host's constraint
// and query commands.
bool Keep(const std::string& name) {
  if (Kept().count(name)) return true;
  for (const char* prefix :
       {"set_", "get_", "all_", "create_", "group_path", "remove_", "sizeof_collection",
        "add_to_collection", "filter_collection", "index_collection", "foreach_in_collection"}) {
    if (name.rfind(prefix, 0) == 0) return true;
  }
  return false;
}

// Removes a folder of plain files.
void RemoveFolder(const std::string& folder) {
  if (DIR* listing = opendir(folder.c_str())) {
    while (dirent* entry = readdir(listing))
      if (std::string(entry->d_name) != "." && std::string(entry->d_name) != "..")
        unlink((folder + "/" + entry->d_name).c_str());
    closedir(listing);
  }
  rmdir(folder.c_str());
}

// Every command takes "> FILE" to send its output to a file: inputs write
// files of any name, so each input runs in a scratch folder of the harness.
// The folder is left again after the input, since libFuzzer reads and
// writes its corpus by paths relative to where it was started.
class InScratchFolder {
 public:
  InScratchFolder() {
    if (!getcwd(home_, sizeof home_) || chdir(Folder().c_str()) != 0) std::abort();
  }
  ~InScratchFolder() {
    if (chdir(home_) != 0) std::abort();
  }

 private:
  static const std::string& Folder() {
    static const std::string folder = [] {
      const char* tmp = std::getenv("TMPDIR");
      std::string made = std::string(tmp && *tmp ? tmp : "/tmp") + "/kelvo_fuzz_sdc_XXXXXX";
      if (!mkdtemp(&made[0])) std::abort();
      return made;
    }();
    static const bool removed_at_exit = std::atexit([] { RemoveFolder(Folder()); }) == 0;
    (void)removed_at_exit;
    return folder;
  }

  char home_[4096];
};

// One interpreter for all inputs, over the small design of the constraint
// tests, linked once; the constraints stay from one input to the next.
Tcl_Interp* Interp() {
  static Tcl_Interp* interp = [] {
    Tcl_Interp* made = Tcl_CreateInterp();
    cmdlib::CreateHostCommands();
    cmdlib::BindCommands(made);
    const std::string data = KELVO_TEST_DATA;
    const std::string setup = "read_liberty " + data +
                              "/sdc_small.lib; link_design [lindex [read_verilog " + data +
                              "/sdc_small.v] end]";
    if (Tcl_Eval(made, setup.c_str()) != TCL_OK) std::abort();
    // The same commands again under their full names.
    Tcl_Eval(made,
             "foreach n {::tcl::file ::tcl::string ::tcl::binary ::tcl::chan ::tcl::encoding "
             "::tcl::zlib ::tcl::mathop ::tcl::mathfunc ::tcl::unsupported ::tcl::prefix ::oo} "
             "{catch {namespace delete $n}}");
    Tcl_Eval(made, "info commands");
    Tcl_Obj* names = Tcl_DuplicateObj(Tcl_GetObjResult(made));
    Tcl_IncrRefCount(names);
    int count = 0;
    Tcl_Obj** items = nullptr;
    Tcl_ListObjGetElements(nullptr, names, &count, &items);
    for (int i = 0; i < count; ++i) {
      const std::string name = Tcl_GetString(items[i]);
      if (!Keep(name) || name == "set_app_var" || name == "set_message_limit")
        Tcl_DeleteCommand(made, name.c_str());
    }
    Tcl_DecrRefCount(names);
    Tcl_LimitTypeSet(made, TCL_LIMIT_COMMANDS);
    return made;
  }();
  return interp;
}

}  // namespace

std::string FuzzSdc(std::string_view input) {
  const InScratchFolder scratch;
  Tcl_Interp* interp = Interp();
  std::string path;
  const int fd = InputAsFile(input, path);
  if (fd < 0) return std::string();
  // At most 100,000 commands an input, loops included.
  Tcl_Eval(interp, "info cmdcount");
  int done = 0;
  Tcl_GetIntFromObj(nullptr, Tcl_GetObjResult(interp), &done);
  Tcl_LimitSetCommands(interp, done + 100000);
  const std::string script = "read_sdc " + path;
  const int code = Tcl_Eval(interp, script.c_str());
  const std::string result = Tcl_GetStringResult(interp);
  Tcl_LimitSetCommands(interp, done + 200000);
  Tcl_ResetResult(interp);
  close(fd);
  if (Tcl_Eval(interp, "current_design") != TCL_OK ||
      std::string(Tcl_GetStringResult(interp)) != "sdc_top")
    return "the design is no longer current after: " + result;
  if (code != TCL_OK && result.find(path) == std::string::npos &&
      result.find("limit exceeded") == std::string::npos)
    return "a message without the file: " + result;
  if (msg::ValidText(result) != result) return "a message that is not valid text: " + result;
  return std::string();
}

}  // namespace fuzz
