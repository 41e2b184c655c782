// The shell's own settings ("application variables"): log_file,
// message_limit, messages_to_stderr, show_progress, line_editor. Each is a
// global Tcl variable too, so $log_file and printvar see it; a write that
// the setting refuses is undone with an error.
#pragma once

#include <tcl.h>

#include <functional>
#include <string>
#include <vector>

namespace shell {

struct AppVar {
  // Checks and applies a new value; false with `error` set refuses it.
  using Apply = std::function<bool(const std::string& value, std::string& error)>;
  std::string name;
  std::string description;
  std::string value;
  Apply apply;
  bool read_only = false;
};

class AppVars {
 public:
  static AppVars& Get();
  // Declares a setting with its first value (applied at Install).
  void Define(AppVar var) { vars_.push_back(std::move(var)); }
  // Creates the Tcl variables and applies the first values.
  void Install(Tcl_Interp* interp);
  AppVar* Find(const std::string& name);
  const std::vector<AppVar>& All() const { return vars_; }
  // Sets through the Tcl variable, so that the trace checks it.
  bool Set(Tcl_Interp* interp, const std::string& name, const std::string& value,
           std::string& error);

 private:
  std::vector<AppVar> vars_;
};

// Reads a boolean as Tcl does (1/0, true/false, yes/no, on/off).
bool ParseBool(const std::string& text, bool& value);

}  // namespace shell
