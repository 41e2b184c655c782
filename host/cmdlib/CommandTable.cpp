#include "cmdlib/CommandTable.h"

#include <cstring>

#include "cmdlib/HostCommands.h"
#include "hostapi/cmd/CommonCmd.h"

namespace cmdlib {

CommandTable& CommandTable::Get() {
  static CommandTable table;
  return table;
}

CommonCmd* CommandTable::Find(const char* name) const {
  for (CommonCmd* command : commands_)
    if (command->name() == name) return command;
  return nullptr;
}

namespace {
std::vector<CommandFactory>& Factories() {
  static std::vector<CommandFactory> factories;
  return factories;
}
}  // namespace

HostCommandRegistrar::HostCommandRegistrar(CommandFactory factory) {
  Factories().push_back(factory);
}

void CreateHostCommands() {
  static bool created = false;
  if (created) return;
  created = true;
  for (CommandFactory factory : Factories()) factory();
}

}  // namespace cmdlib
