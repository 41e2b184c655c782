// kelvo: the Tcl shell that loads the report module.
//   kelvo SCRIPT [ARGS]   run a script and exit (0 ran to its end, 1 a Tcl error escaped)
//   kelvo -c "COMMANDS"   the same for a command string
//   kelvo                 interactive prompt
#include <tcl.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>

#include "cmdlib/HostCommands.h"
#include "cmdlib/TclBinding.h"
#include "shell/ModuleLoader.h"
#include "shell/ShellCommands.h"

namespace {

constexpr const char* kVersion = "kelvo 0.1.0";

void PrintShellHelp() {
  std::printf(
      "Usage: kelvo [SCRIPT [ARGS...]] | -c COMMANDS | -version | -help\n"
      "  SCRIPT [ARGS]  run a Tcl script, then exit (argv holds ARGS)\n"
      "  -c COMMANDS    run a command string, then exit\n"
      "  -version       print the version\n"
      "  -help          print this text\n"
      "Without arguments kelvo reads commands at the prompt 'kelvo> '.\n"
      "Inside, 'help' lists the commands and 'help CMD' shows one command's usage.\n");
}

// Prints the error of a failed evaluation (message and where) on stderr.
// Tcl names the file and line of a script; for a command string the line
// is added here.
void ReportTclError(Tcl_Interp* interp, bool command_string = false) {
  cmdlib::FlushOutputs();
  const char* info = Tcl_GetVar(interp, "errorInfo", TCL_GLOBAL_ONLY);
  std::fprintf(stderr, "%s\n", info ? info : Tcl_GetStringResult(interp));
  if (command_string)
    std::fprintf(stderr, "    (command string line %d)\n", Tcl_GetErrorLine(interp));
  std::fflush(stderr);
}

void SetArgv(Tcl_Interp* interp, const char* argv0, int argc, char** argv) {
  Tcl_Obj* list = Tcl_NewListObj(0, nullptr);
  for (int i = 0; i < argc; ++i)
    Tcl_ListObjAppendElement(interp, list, Tcl_NewStringObj(argv[i], -1));
  Tcl_SetVar2Ex(interp, "argv", nullptr, list, TCL_GLOBAL_ONLY);
  Tcl_SetVar2Ex(interp, "argc", nullptr, Tcl_NewIntObj(argc), TCL_GLOBAL_ONLY);
  Tcl_SetVar2Ex(interp, "argv0", nullptr, Tcl_NewStringObj(argv0, -1), TCL_GLOBAL_ONLY);
}

int Finish(Tcl_Interp* interp, int status) {
  cmdlib::FlushOutputs();
  Tcl_DeleteInterp(interp);
  return status;
}

int RunInteractive(Tcl_Interp* interp) {
  bool terminal = isatty(STDIN_FILENO);
  if (terminal) {
    std::printf("%s, type 'help' for the commands, 'exit' to leave.\n", kVersion);
    // Line editing where tclreadline is installed.
    if (Tcl_Eval(interp, "package require tclreadline") == TCL_OK) {
      Tcl_Eval(interp, "proc ::tclreadline::prompt1 {} { return {kelvo> } }");
      if (Tcl_Eval(interp, "::tclreadline::Loop") == TCL_OK) return Finish(interp, 0);
    }
  }
  std::string command, line;
  int status = 0;
  while (true) {
    if (terminal) {
      cmdlib::FlushOutputs();
      std::printf(command.empty() ? "kelvo> " : "> ");
      std::fflush(stdout);
    }
    if (!std::getline(std::cin, line)) break;
    command += line;
    command += '\n';
    if (!Tcl_CommandComplete(command.c_str())) continue;
    int code = Tcl_RecordAndEval(interp, command.c_str(), 0);
    command.clear();
    cmdlib::FlushOutputs();
    if (code != TCL_OK) {
      if (terminal) {
        // At the prompt the message is enough; the trace is in $errorInfo.
        std::fprintf(stderr, "%s\n", Tcl_GetStringResult(interp));
        std::fflush(stderr);
      } else {
        ReportTclError(interp);
      }
      status = 1;
      continue;
    }
    const char* result = Tcl_GetStringResult(interp);
    if (terminal && result[0] != '\0') std::printf("%s\n", result);
  }
  return Finish(interp, terminal ? 0 : status);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc >= 2 &&
      (std::strcmp(argv[1], "-version") == 0 || std::strcmp(argv[1], "--version") == 0)) {
    std::printf("%s\n", kVersion);
    return 0;
  }
  if (argc >= 2 && (std::strcmp(argv[1], "-help") == 0 || std::strcmp(argv[1], "--help") == 0)) {
    PrintShellHelp();
    return 0;
  }
  if (argc >= 2 && std::strcmp(argv[1], "-c") == 0 && argc < 3) {
    std::fprintf(stderr, "kelvo: -c needs a command string\n");
    return 1;
  }
  // A script name never starts with a dash here; a mistyped option would
  // otherwise read as a missing script.
  if (argc >= 2 && argv[1][0] == '-' && std::strcmp(argv[1], "-c") != 0) {
    std::fprintf(stderr, "kelvo: unknown option '%s' (kelvo -help lists the options)\n", argv[1]);
    return 1;
  }

  Tcl_FindExecutable(argv[0]);
  Tcl_Interp* interp = Tcl_CreateInterp();
  Tcl_Init(interp);  // without the Tcl script library some Tcl commands are missing

  cmdlib::CreateHostCommands();
  shell::LoadedModule module;
  std::string error;
  if (!shell::LoadReportModule(module, error)) {
    std::fprintf(stderr, "kelvo: %s\n", error.c_str());
    Tcl_DeleteInterp(interp);
    return 2;
  }
  cmdlib::BindCommands(interp);
  shell::CreateShellCommands(interp, &module);

  if (argc >= 3 && std::strcmp(argv[1], "-c") == 0) {
    SetArgv(interp, argv[0], argc - 3, argv + 3);
    Tcl_SetVar(interp, "tcl_interactive", "0", TCL_GLOBAL_ONLY);
    if (Tcl_Eval(interp, argv[2]) != TCL_OK) {
      ReportTclError(interp, true);
      return Finish(interp, 1);
    }
    return Finish(interp, 0);
  }
  if (argc >= 2) {
    SetArgv(interp, argv[1], argc - 2, argv + 2);
    Tcl_SetVar(interp, "tcl_interactive", "0", TCL_GLOBAL_ONLY);
    if (Tcl_EvalFile(interp, argv[1]) != TCL_OK) {
      ReportTclError(interp);
      return Finish(interp, 1);
    }
    return Finish(interp, 0);
  }
  Tcl_SetVar(interp, "tcl_interactive", isatty(STDIN_FILENO) ? "1" : "0", TCL_GLOBAL_ONLY);
  SetArgv(interp, argv[0], 0, nullptr);
  return RunInteractive(interp);
}
