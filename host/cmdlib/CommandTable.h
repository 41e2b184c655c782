// Every command made in the process, in order of creation. The table owns
// nothing: commands live until the process ends.
#pragma once

#include <vector>

class CommonCmd;

namespace cmdlib {

class CommandTable {
 public:
  static CommandTable& Get();
  void Add(CommonCmd* command) { commands_.push_back(command); }
  // A command whose construction failed half-way leaves the table again.
  void Remove(CommonCmd* command);
  const std::vector<CommonCmd*>& Commands() const { return commands_; }
  CommonCmd* Find(const char* name) const;

 private:
  std::vector<CommonCmd*> commands_;
};

}  // namespace cmdlib
