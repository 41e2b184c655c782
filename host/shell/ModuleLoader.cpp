#include "shell/ModuleLoader.h"

#include <dlfcn.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>

namespace shell {
namespace {

std::string ExecutableDir() {
  char path[PATH_MAX];
  ssize_t length = readlink("/proc/self/exe", path, sizeof path - 1);
  if (length <= 0) return ".";
  std::string full(path, static_cast<size_t>(length));
  size_t slash = full.rfind('/');
  return slash == std::string::npos ? "." : full.substr(0, slash);
}

std::string ModulePath() {
  if (const char* configured = std::getenv("KELVO_MODULE_PATH")) {
    std::string path = configured;
    // A directory names the folder that holds the module.
    if (!path.empty() && path.size() >= 3 && path.compare(path.size() - 3, 3, ".so") != 0)
      path += "/libkelvo_report.so";
    return path;
  }
  return ExecutableDir() + "/libkelvo_report.so";
}

}  // namespace

bool LoadReportModule(LoadedModule& module, std::string& error) {
  std::string path = ModulePath();
  void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_GLOBAL);
  if (!handle) {
    error = "cannot load the report module " + path + ": " + dlerror();
    return false;
  }
  auto do_register = reinterpret_cast<void (*)()>(dlsym(handle, "ReportCmdRegister"));
  auto help = reinterpret_cast<void (*)()>(dlsym(handle, "ReportCmdHelp"));
  if (!do_register || !help) {
    error = "the report module " + path + " lacks " +
            std::string(!do_register ? "ReportCmdRegister" : "ReportCmdHelp");
    return false;
  }
  do_register();
  module.help = help;
  return true;
}

}  // namespace shell
