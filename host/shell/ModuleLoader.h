// Loads the report module and registers its commands.
#pragma once

#include <string>

namespace shell {

struct LoadedModule {
  void (*help)() = nullptr;  // prints the module's command listing
};

// Opens libkelvo_report.so from beside the executable (or from
// KELVO_MODULE_PATH), looks up its entry points and registers its commands.
// On failure returns false with `error` set.
bool LoadReportModule(LoadedModule& module, std::string& error);

}  // namespace shell
