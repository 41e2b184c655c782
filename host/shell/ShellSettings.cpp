#include "shell/ShellSettings.h"

#include <climits>
#include <cstdlib>

#include "msg/HostMsg.h"
#include "msg/MessageBook.h"
#include "msg/Progress.h"
#include "msg/SessionLog.h"
#include "shell/AppVars.h"

namespace shell {
namespace {

bool ApplyLogFile(const std::string& value, std::string& error) {
  if (value.empty()) {
    msg::CloseLog();
    return true;
  }
  return msg::OpenLog(value, error);
}

bool ApplyMessageLimit(const std::string& value, std::string& error) {
  char* end = nullptr;
  const long limit = std::strtol(value.c_str(), &end, 10);
  if (value.empty() || *end != '\0' || limit < -1 || limit > INT_MAX) {
    error = "message_limit is -1 (no limit) or a count, not '" + value + "'";
    return false;
  }
  msg::MessageBook::Get().SetDefaultLimit(static_cast<int>(limit));
  return true;
}

// A boolean setting that calls `set` with its value.
AppVar::Apply BooleanSetting(const std::string& name, void (*set)(bool)) {
  return [name, set](const std::string& value, std::string& error) {
    bool on = false;
    if (!ParseBool(value, on)) {
      error = name + " is true or false, not '" + value + "'";
      return false;
    }
    set(on);
    return true;
  };
}

}  // namespace

void DefineShellSettings(const std::string& log_file, const std::string& line_editor) {
  AppVars& vars = AppVars::Get();
  vars.Define({"log_file", "File that keeps everything the session prints (\"\": none)", log_file,
               ApplyLogFile});
  vars.Define({"message_limit",
               "How many times each message id is shown (-1: no limit); set_message_limit "
               "sets one id's",
               "100", ApplyMessageLimit});
  vars.Define({"messages_to_stderr",
               "Warnings and errors go to standard error as well as to the output and the log",
               "false", BooleanSetting("messages_to_stderr", msg::SetMessagesToStderr)});
  vars.Define({"show_progress",
               "Progress lines for long work, on standard error when it is a terminal", "true",
               BooleanSetting("show_progress", msg::Progress::Enable)});
  vars.Define({"line_editor", "The prompt's line editor: tclreadline, builtin or none (read only)",
               line_editor, nullptr, true});
}

}  // namespace shell
