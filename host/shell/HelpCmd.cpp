// help ?-verbose? ?PATTERN?: the command listing, or the commands whose
// names match a glob, or one command's usage.
#include <cstdio>
#include <string>
#include <vector>

#include "cmdlib/CommandTable.h"
#include "cmdlib/HostCommands.h"
#include "cmdlib/TclBinding.h"
#include "cmdlib/TclCmd.h"
#include "shell/ShellCommands.h"

namespace shell {
namespace {

class HelpCmd : public cmdlib::TclCmd {
 public:
  HelpCmd() : TclCmd("help", "List the commands, or show how to use some") {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("verbose", "Show the usage of every command that matches", false, ValueType::kFlag,
               std::any());
    addOptions("pattern", "Command name or glob pattern (* ? [])", true, ValueType::kString,
               std::any());
  }

  int run(Tcl_Interp* interp) override {
    const std::string pattern = StringOption("pattern");
    const bool verbose = FlagOption("verbose");
    cmdlib::FlushOutputs();
    if (pattern.empty()) {
      ListAll(verbose);
      return TCL_OK;
    }
    std::vector<CommonCmd*> matches;
    for (CommonCmd* command : cmdlib::CommandTable::Get().Commands())
      if (Tcl_StringMatch(command->name().c_str(), pattern.c_str())) matches.push_back(command);
    if (matches.empty()) return Fail(interp, "no command matches '" + pattern + "'");
    // One command named in full: its usage.
    if (verbose || (matches.size() == 1 && matches.front()->name() == pattern)) {
      for (CommonCmd* command : matches) command->printUsage();
    } else {
      for (CommonCmd* command : matches) PrintLine(command);
    }
    cmdlib::FlushOutputs();
    Tcl_ResetResult(interp);
    return TCL_OK;
  }

 private:
  static void PrintLine(CommonCmd* command) {
    std::printf("    %-23s# %s\n", command->name().c_str(), command->description().c_str());
  }

  static void ListAll(bool verbose) {
    const LoadedModule* module = Session::Get().module;
    if (module && module->help) module->help();
    std::printf("%-27s\n", "SHELL:");
    for (CommonCmd* command : cmdlib::CommandTable::Get().Commands()) {
      if (command->cmdModule()) continue;  // module commands are listed above
      if (verbose)
        command->printUsage();
      else
        PrintLine(command);
    }
    cmdlib::FlushOutputs();
  }
};

cmdlib::HostCommandRegistrar registrar([] { new HelpCmd(); });

}  // namespace
}  // namespace shell
