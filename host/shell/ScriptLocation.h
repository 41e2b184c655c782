// Where the running script is, for messages: the file and line of the
// innermost command that comes from a file, as Tcl's frames tell it, or as
// source -echo tells it for the commands it runs one by one.
#pragma once

#include <tcl.h>

#include <string>

namespace shell {

// Gives the message layer its way of finding the script's file and line.
void InstallScriptLocation(Tcl_Interp* interp);

// Messages name a script as it was given (kelvo SCRIPT, source FILE), not
// by the absolute name Tcl keeps.
void RememberScriptName(const std::string& given);

// source -echo runs a file command by command; it says where each is.
class EchoedFileScope {
 public:
  EchoedFileScope(Tcl_Interp* interp, const std::string& file);
  ~EchoedFileScope();
  EchoedFileScope(const EchoedFileScope&) = delete;
  EchoedFileScope& operator=(const EchoedFileScope&) = delete;
  void SetLine(int line);
};

}  // namespace shell
