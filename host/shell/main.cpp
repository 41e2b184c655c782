// kelvo: the Tcl shell that loads the report module.
//   kelvo [-log FILE] SCRIPT [ARGS]   run a script and exit (0 ran to its end,
//                                     1 a Tcl error escaped)
//   kelvo [-log FILE] -c "COMMANDS"   the same for a command string
//   kelvo [-log FILE]                 interactive prompt
#include <tcl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "cmdlib/HostCommands.h"
#include "cmdlib/OutputChannels.h"
#include "cmdlib/TclBinding.h"
#include "msg/SessionLog.h"
#include "shell/AppVars.h"
#include "shell/Completer.h"
#include "shell/History.h"
#include "shell/InterruptHandler.h"
#include "shell/LineEditor.h"
#include "shell/ModuleLoader.h"
#include "shell/Prompt.h"
#include "shell/ScriptLocation.h"
#include "shell/ShellCommands.h"
#include "shell/ShellSettings.h"
#include "shell/TclReadlineReader.h"

namespace {

void PrintShellHelp() {
  std::printf(
      "Usage: kelvo [-log FILE] [SCRIPT [ARGS...] | -c COMMANDS [ARGS...]] | -version | -help\n"
      "  SCRIPT [ARGS]  run a Tcl script, then exit (argv holds ARGS)\n"
      "  -c COMMANDS    run a command string, then exit\n"
      "  -log FILE      keep everything the session prints in FILE\n"
      "  -version       print the version\n"
      "  -help          print this text\n"
      "Without a script kelvo reads commands at the prompt 'kelvo> '.\n"
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

// The prompt's line reader: tclreadline where it is installed, else the
// shell's own editor; KELVO_LINE_EDITOR=builtin or tclreadline chooses.
std::unique_ptr<shell::LineReader> MakeLineReader(Tcl_Interp* interp, bool terminal,
                                                  std::string& name) {
  if (!terminal) {
    name = "none";
    return std::make_unique<shell::PlainLineReader>();
  }
  const char* wanted = std::getenv("KELVO_LINE_EDITOR");
  const std::string choice = wanted ? wanted : "";
  if (choice != "builtin") {
    if (auto reader = shell::TclReadlineReader::Open(interp, shell::Completer(interp),
                                                     shell::HistoryPath())) {
      name = "tclreadline";
      return reader;
    }
  }
  name = "builtin";
  return std::make_unique<shell::LineEditor>(shell::Completer(interp), shell::HistoryPath());
}

struct Arguments {
  std::string log_file;
  const char* command_string = nullptr;
  const char* script = nullptr;
  int rest = 0;  // index of the first script argument
};

// False with the exit status in `status` when kelvo is to end at once.
bool ParseArguments(int argc, char** argv, Arguments& args, int& status) {
  int i = 1;
  if (i + 1 < argc && std::strcmp(argv[i], "-log") == 0) {
    args.log_file = argv[i + 1];
    i += 2;
  } else if (i < argc && std::strcmp(argv[i], "-log") == 0) {
    std::fprintf(stderr, "kelvo: -log needs a file name\n");
    status = 1;
    return false;
  }
  if (i < argc && (!std::strcmp(argv[i], "-version") || !std::strcmp(argv[i], "--version"))) {
    std::printf("%s\n", shell::kVersion);
    status = 0;
    return false;
  }
  if (i < argc && (!std::strcmp(argv[i], "-help") || !std::strcmp(argv[i], "--help"))) {
    PrintShellHelp();
    status = 0;
    return false;
  }
  if (i < argc && std::strcmp(argv[i], "-c") == 0) {
    if (i + 1 >= argc) {
      std::fprintf(stderr, "kelvo: -c needs a command string\n");
      status = 1;
      return false;
    }
    args.command_string = argv[i + 1];
    args.rest = i + 2;
    return true;
  }
  // A script name never starts with a dash here; a mistyped option would
  // otherwise read as a missing script.
  if (i < argc && argv[i][0] == '-') {
    std::fprintf(stderr, "kelvo: unknown option '%s' (kelvo -help lists the options)\n", argv[i]);
    status = 1;
    return false;
  }
  if (i < argc) {
    args.script = argv[i];
    args.rest = i + 1;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  Arguments args;
  int status = 0;
  if (!ParseArguments(argc, argv, args, status)) return status;

  msg::InstallLogTee();
  if (!args.log_file.empty()) {
    std::string error;
    if (!msg::OpenLog(args.log_file, error)) {
      std::fprintf(stderr, "kelvo: -log: %s\n", error.c_str());
      return 1;
    }
  }
  Tcl_FindExecutable(argv[0]);
  cmdlib::InstallOutputChannels();
  Tcl_Interp* interp = Tcl_CreateInterp();
  Tcl_Init(interp);  // without the Tcl script library some Tcl commands are missing

  cmdlib::CreateHostCommands();
  shell::LoadedModule module;
  std::string error;
  if (!shell::LoadReportModule(module, error)) {
    std::fprintf(stderr, "kelvo: %s\n", error.c_str());
    std::fflush(stderr);
    _exit(2);
  }
  shell::PrepareShellCommands(interp, &module);
  cmdlib::BindCommands(interp);
  shell::FinishShellCommands(interp);
  shell::InstallScriptLocation(interp);
  shell::InstallInterruptHandler(interp);

  const bool interactive = !args.script && !args.command_string;
  const bool terminal = interactive && isatty(STDIN_FILENO);
  std::string editor_name = "none";
  std::unique_ptr<shell::LineReader> reader;
  if (interactive) reader = MakeLineReader(interp, terminal, editor_name);
  shell::DefineShellSettings(args.log_file, editor_name);
  shell::AppVars::Get().Install(interp);
  shell::Session::Get().before_exit = [&reader] {
    if (reader) reader->Finish();
  };

  if (args.command_string) {
    SetArgv(interp, argv[0], argc - args.rest, argv + args.rest);
    Tcl_SetVar(interp, "tcl_interactive", "0", TCL_GLOBAL_ONLY);
    if (Tcl_Eval(interp, args.command_string) != TCL_OK) {
      ReportTclError(interp, true);
      shell::ExitShell(1);
    }
    shell::ExitShell(0);
  }
  if (args.script) {
    SetArgv(interp, args.script, argc - args.rest, argv + args.rest);
    shell::RememberScriptName(args.script);
    Tcl_SetVar(interp, "tcl_interactive", "0", TCL_GLOBAL_ONLY);
    if (Tcl_EvalFile(interp, args.script) != TCL_OK) {
      ReportTclError(interp);
      shell::ExitShell(1);
    }
    shell::ExitShell(0);
  }
  Tcl_SetVar(interp, "tcl_interactive", terminal ? "1" : "0", TCL_GLOBAL_ONLY);
  SetArgv(interp, argv[0], 0, nullptr);
  if (terminal)
    std::printf("%s, type 'help' for the commands, 'exit' to leave.\n", shell::kVersion);
  shell::ExitShell(shell::RunPrompt(interp, *reader, terminal));
}
