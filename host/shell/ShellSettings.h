// Declares the shell's settings (see AppVars.h) with their first values.
#pragma once

#include <string>

namespace shell {

// `log_file` is the file of kelvo -log, or "".
void DefineShellSettings(const std::string& log_file, const std::string& line_editor);

}  // namespace shell
