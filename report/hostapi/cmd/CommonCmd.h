// The command base of the tool. A command declares its options in its
// constructor; the host parses a call's arguments against them and then
// runs prevExec, exec (when prevExec returned 0) and postExec.
#pragma once

#include <any>
#include <memory>
#include <string>
#include <vector>

#include <boost/any.hpp>

// Option value types. The codes of string, integer, flag and string list are
// fixed; the others are the host's own.
enum class ValueType : int {
  kString = 1,
  kInteger = 2,
  kFlag = 3,
  kDouble = 4,
  kIntegerList = 5,
  kDoubleList = 6,
  kStringList = 7,
  // Files of a read command: a word that names a file is one file, any other
  // word is a Tcl list of files (so [glob ...] works). Read as a string list.
  kFileList = 8,
};

// Which module a command belongs to.
struct CmdModuleInfo {
  bool loaded;
  std::string name;
};

class CommonCmd {
 public:
  // Creates the command under its Tcl name and enters it in the host's
  // command table, which owns it from then on. `third` is unused (null).
  CommonCmd(const char* name, const char* description, const char* third);
  virtual ~CommonCmd();
  CommonCmd(const CommonCmd&) = delete;
  CommonCmd& operator=(const CommonCmd&) = delete;

  virtual int prevExec() { return 0; }
  virtual int exec() = 0;
  virtual int postExec() { return 0; }
  // Writes the usage text to standard output.
  virtual void printUsage();

  // Declares one option; `name` has no dash. An empty default means none.
  void addOptions(std::string name, std::string help, bool positional, ValueType type,
                  std::any default_value);
  // How many times the option was given in the current call.
  int getOptionCount(std::string name);
  // Flags: whether the flag was given.
  bool getOptionValue(const std::string& name);
  // Valued options: true and `value` filled when the option has a value
  // (given, or declared with a default).
  bool getOptionValue(const std::string& name, boost::any& value);

  const std::string& name() const;
  const std::string& description() const;
  const CmdModuleInfo* cmdModule() const { return module; }

  // For host commands, whose Tcl result is data rather than a status.
  void SetTclResult(std::string value);
  void SetTclResultList(std::vector<std::string> items);
  // For host commands: the Tcl command raises an error with this message.
  void SetTclError(std::string message);

  struct State;  // the host's bookkeeping: options, parsed values, result
  State& state() { return *state_; }

 protected:
  const CmdModuleInfo* module = nullptr;

 private:
  std::unique_ptr<State> state_;
};
