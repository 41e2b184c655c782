// exit ?STATUS?: leaves the shell the way the end of a script does.
#include <boost/any.hpp>

#include "cmdlib/HostCommands.h"
#include "cmdlib/TclCmd.h"
#include "shell/ShellCommands.h"

namespace shell {
namespace {

class ExitCmd : public cmdlib::TclCmd {
 public:
  ExitCmd() : TclCmd("exit", "Leave the shell with an exit status") {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("status", "Exit status, 0 by default", true, ValueType::kInteger, std::any());
  }

  int run(Tcl_Interp*) override {
    boost::any value;
    int status = getOptionValue("status", value) ? boost::any_cast<int>(value) : 0;
    ExitShell(status);
  }
};

cmdlib::HostCommandRegistrar registrar([] { new ExitCmd(); });

}  // namespace
}  // namespace shell
