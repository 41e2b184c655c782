#include "shell/Prompt.h"

#include <cstdio>
#include <iostream>
#include <string>

#include "cmdlib/TclBinding.h"
#include "msg/SessionLog.h"
#include "shell/InterruptHandler.h"

namespace shell {

LineReader::Outcome PlainLineReader::Read(const std::string&, std::string& line) {
  return std::getline(std::cin, line) ? Outcome::kLine : Outcome::kEnd;
}

int RunPrompt(Tcl_Interp* interp, LineReader& reader, bool terminal) {
  std::string command, line;
  int status = 0;
  while (true) {
    cmdlib::FlushOutputs();
    const std::string prompt = command.empty() ? "kelvo> " : "> ";
    SetAtPrompt(terminal);
    TakePromptInterrupt();
    const LineReader::Outcome outcome = reader.Read(terminal ? prompt : "", line);
    SetAtPrompt(false);
    if (outcome == LineReader::Outcome::kEnd) break;
    // Ctrl-C at the prompt drops the command begun; a reader that went on
    // reading after it (tclreadline) hands over the line typed since.
    if (TakePromptInterrupt()) command.clear();
    if (outcome == LineReader::Outcome::kCleared) {
      command.clear();
      continue;
    }
    if (terminal) {
      msg::LogText(prompt + line + "\n");
      reader.Remember(line);
    }
    command += line;
    command += '\n';
    if (!Tcl_CommandComplete(command.c_str())) continue;
    const int code = Tcl_RecordAndEval(interp, command.c_str(), 0);
    command.clear();
    cmdlib::FlushOutputs();
    if (code != TCL_OK) {
      status = 1;
      if (terminal) {
        // At the prompt the message is enough; the trace is in $errorInfo.
        std::fprintf(stderr, "%s\n", Tcl_GetStringResult(interp));
      } else {
        const char* info = Tcl_GetVar(interp, "errorInfo", TCL_GLOBAL_ONLY);
        std::fprintf(stderr, "%s\n", info ? info : Tcl_GetStringResult(interp));
      }
      std::fflush(stderr);
      continue;
    }
    const char* result = Tcl_GetStringResult(interp);
    if (terminal && result[0] != '\0') std::printf("%s\n", result);
  }
  return terminal ? 0 : status;
}

}  // namespace shell
