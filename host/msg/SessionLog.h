// The log file of a session (kelvo -log FILE, set_app_var log_file): a copy
// of everything the session printed on standard output and standard error,
// and of the commands typed at the prompt.
#pragma once

#include <string>
#include <string_view>

namespace msg {

// Makes C's stdout and stderr streams copy what they write to the log
// (standard output and error still get it all), so that the log holds
// everything, whoever printed it. Once, at start.
void InstallLogTee();

// Starts logging to `path` (replacing the file), ending any log before.
// False with `error` set when the file cannot be written; the old log, if
// any, then goes on.
bool OpenLog(const std::string& path, std::string& error);
void CloseLog();
void LogText(std::string_view text);

}  // namespace msg
