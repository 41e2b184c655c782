#include "shell/ShellCommands.h"

#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>

#include "cmdlib/CommandTable.h"
#include "cmdlib/TclBinding.h"
#include "hostapi/cmd/CommonCmd.h"
#include "hostapi/msg/ResultChannel.h"

namespace shell {
namespace {

struct BuiltIn {
  const char* name;
  const char* description;
  const char* usage;
};

const BuiltIn kBuiltIns[] = {
    {"help", "List the commands, or show how to use one",
     "Usage: help    #  List the commands, or show how to use one\n"
     "        [command]              (Command whose usage to show)\n"},
    {"redirect", "Send the report text of a script to a file or a variable",
     "Usage: redirect    #  Send the report text of a script to a file or a variable\n"
     "        [-append]              (Append to the file instead of replacing it)\n"
     "        [-tee]                 (Also show the text on the screen)\n"
     "        [-variable]            (The target names a Tcl variable, not a file)\n"
     "        [target]               (File name, or variable name with -variable)\n"
     "        [script]               (Commands whose report text is captured)\n"},
};

int HelpCmd(ClientData data, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
  const LoadedModule* module = static_cast<const LoadedModule*>(data);
  cmdlib::FlushOutputs();
  if (objc > 2) {
    Tcl_SetObjResult(interp, Tcl_NewStringObj("Error: help: unexpected argument", -1));
    return TCL_ERROR;
  }
  if (objc == 2) {
    const char* wanted = Tcl_GetString(objv[1]);
    if (CommonCmd* command = cmdlib::CommandTable::Get().Find(wanted)) {
      command->printUsage();
      cmdlib::FlushOutputs();
      return TCL_OK;
    }
    for (const BuiltIn& builtin : kBuiltIns) {
      if (std::strcmp(builtin.name, wanted) == 0) {
        std::fputs(builtin.usage, stdout);
        cmdlib::FlushOutputs();
        return TCL_OK;
      }
    }
    std::string message = std::string("Error: help: unknown command '") + wanted + "'";
    Tcl_SetObjResult(interp, Tcl_NewStringObj(message.c_str(), -1));
    return TCL_ERROR;
  }
  if (module && module->help) module->help();
  std::printf("%-27s\n", "SHELL:");
  for (const BuiltIn& builtin : kBuiltIns)
    std::printf("    %-23s# %s\n", builtin.name, builtin.description);
  for (CommonCmd* command : cmdlib::CommandTable::Get().Commands()) {
    if (command->cmdModule()) continue;  // module commands are listed above
    std::printf("    %-23s# %s\n", command->name().c_str(), command->description().c_str());
  }
  cmdlib::FlushOutputs();
  return TCL_OK;
}

int RedirectUsageError(Tcl_Interp* interp) {
  Tcl_SetObjResult(interp, Tcl_NewStringObj("Error: redirect: usage: redirect ?-append? ?-tee? "
                                            "?-variable? target script",
                                            -1));
  return TCL_ERROR;
}

int RedirectCmd(ClientData, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
  bool append = false, tee = false, to_variable = false;
  int i = 1;
  for (; i < objc; ++i) {
    const char* word = Tcl_GetString(objv[i]);
    if (std::strcmp(word, "-append") == 0) {
      append = true;
    } else if (std::strcmp(word, "-tee") == 0) {
      tee = true;
    } else if (std::strcmp(word, "-variable") == 0) {
      to_variable = true;
    } else if (word[0] == '-' && word[1] != '\0') {
      std::string message = std::string("Error: redirect: unknown option '") + word + "'";
      Tcl_SetObjResult(interp, Tcl_NewStringObj(message.c_str(), -1));
      return TCL_ERROR;
    } else {
      break;
    }
  }
  if (objc - i != 2) return RedirectUsageError(interp);
  std::string target = Tcl_GetString(objv[i]);
  Tcl_Obj* script = objv[i + 1];

  // Open the file first: a target that cannot be written fails before the
  // script runs, not after its text is lost.
  std::ofstream file;
  if (!to_variable) {
    file.open(target, append ? std::ios::app : std::ios::trunc);
    if (!file) {
      std::string message = "Error: redirect: cannot open '" + target + "' for writing";
      Tcl_SetObjResult(interp, Tcl_NewStringObj(message.c_str(), -1));
      return TCL_ERROR;
    }
  }

  std::string captured;
  cmdlib::FlushOutputs();
  msg::PushResultSink([&captured, tee](std::string_view text) {
    captured.append(text);
    if (tee) {
      std::fwrite(text.data(), 1, text.size(), stdout);
      std::fflush(stdout);
    }
  });
  int status = Tcl_EvalObjEx(interp, script, 0);
  msg::PopResultSink();  // restored whatever the script did

  if (to_variable) {
    Tcl_Obj* previous = append ? Tcl_GetVar2Ex(interp, target.c_str(), nullptr, 0) : nullptr;
    std::string value = previous ? std::string(Tcl_GetString(previous)) + captured : captured;
    Tcl_Obj* result = Tcl_GetObjResult(interp);
    Tcl_IncrRefCount(result);
    if (!Tcl_SetVar2Ex(interp, target.c_str(), nullptr, Tcl_NewStringObj(value.c_str(), -1),
                       TCL_LEAVE_ERR_MSG)) {
      Tcl_DecrRefCount(result);
      return TCL_ERROR;
    }
    Tcl_SetObjResult(interp, result);
    Tcl_DecrRefCount(result);
    return status;
  }
  file << captured;
  file.flush();
  if (!file && status == TCL_OK) {
    std::string message = "Error: redirect: cannot write '" + target + "'";
    Tcl_SetObjResult(interp, Tcl_NewStringObj(message.c_str(), -1));
    return TCL_ERROR;
  }
  return status;
}

}  // namespace

void CreateShellCommands(Tcl_Interp* interp, const LoadedModule* module) {
  Tcl_CreateObjCommand(interp, "help", HelpCmd, const_cast<LoadedModule*>(module), nullptr);
  Tcl_CreateObjCommand(interp, "redirect", RedirectCmd, nullptr, nullptr);
}

}  // namespace shell
