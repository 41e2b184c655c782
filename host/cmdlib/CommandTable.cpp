#include "cmdlib/CommandTable.h"

#include <algorithm>
#include <cstring>

#include "cmdlib/HostCommands.h"
#include "hostapi/cmd/CommonCmd.h"

namespace cmdlib {

CommandTable& CommandTable::Get() {
  // Never destroyed: commands live until the process ends, and the table is
  // what holds them (a table destroyed at exit would leave them leaked for
  // the leak checker, and dangling for a command still running).
  static CommandTable* table = new CommandTable;
  return *table;
}

void CommandTable::Remove(CommonCmd* command) {
  commands_.erase(std::remove(commands_.begin(), commands_.end(), command), commands_.end());
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
