// Where the SDC command that runs comes from: while read_sdc runs a file,
// warnings name the file and line of the command.
#pragma once

#include <string>

#include "msg/HostMsg.h"

namespace sta::sdc {

class SdcSource {
 public:
  // The file and line of the command read_sdc runs; empty while no file is
  // read (messages then take the place of the script being run).
  static msg::Location Where();
  static void Enter(const std::string& file);
  static void SetLine(int line);
  static void Leave();
  // True the first time a command name is seen since the last Reset (each
  // read_sdc starts afresh): commands that are accepted but not modelled
  // warn once per name.
  static bool FirstUse(const std::string& command);
  static void ResetFirstUses();
};

}  // namespace sta::sdc
