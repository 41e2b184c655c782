// A host command that works on the interpreter itself: the shell's own
// commands (redirect, source, exit, help, ...). It declares its options like
// any command, so that -help, option prefixes and the usage text work the
// same; the binding parses the call and then calls run() instead of exec().
#pragma once

#include <tcl.h>

#include <string>

#include "hostapi/cmd/CommonCmd.h"

namespace cmdlib {

class TclCmd : public CommonCmd {
 public:
  TclCmd(const char* name, const char* description) : CommonCmd(name, description, nullptr) {}

  // Runs the call whose options are parsed; returns a Tcl code with the
  // interpreter's result set.
  virtual int run(Tcl_Interp* interp) = 0;

  int exec() final { return 1; }  // never called: run() takes its place

 protected:
  // Sets "Error: <command>: <why>" as the result and returns TCL_ERROR.
  int Fail(Tcl_Interp* interp, const std::string& why);
  // Option values of the current call ("" or 0 or {} when not given).
  std::string StringOption(const std::string& option);
  bool FlagOption(const std::string& option) { return getOptionValue(option); }
};

}  // namespace cmdlib
