#include "cmdlib/TclBinding.h"

#include <cstdio>
#include <exception>
#include <new>
#include <string>
#include <vector>

#include "cmdlib/ArgParser.h"
#include "cmdlib/CommandState.h"
#include "cmdlib/CommandTable.h"
#include "cmdlib/Interrupt.h"
#include "cmdlib/OutputCapture.h"
#include "cmdlib/TclCmd.h"
#include "msg/MessageBook.h"
#include "msg/SafeText.h"

namespace cmdlib {
namespace {

void SetResult(Tcl_Interp* interp, const CommonCmd::State& state) {
  if (state.result_object) {
    Tcl_SetObjResult(interp, state.result_object);
    return;
  }
  if (!state.result_is_list) {
    Tcl_SetObjResult(interp, NewTextObj(state.result));
    return;
  }
  Tcl_Obj* list = Tcl_NewListObj(0, nullptr);
  for (const std::string& item : state.result_list)
    Tcl_ListObjAppendElement(interp, list, NewTextObj(item));
  Tcl_SetObjResult(interp, list);
}

int Error(Tcl_Interp* interp, const std::string& message) {
  msg::MessageBook::Get().CountError();
  Tcl_SetObjResult(interp, NewTextObj("Error: " + message));
  return TCL_ERROR;
}

int Interrupt(Tcl_Interp* interp) {
  ClearInterrupt();
  FlushOutputs();
  Tcl_SetObjResult(interp, Tcl_NewStringObj("Interrupted", -1));
  Tcl_SetErrorCode(interp, "KELVO", "INTERRUPTED", nullptr);
  return TCL_ERROR;
}

// parse, prevExec, exec when prevExec passed, postExec.
// `objects` are the argument objects behind `args`.
int RunParsed(CommonCmd* command, Tcl_Interp* interp, const std::vector<std::string>& args,
              Tcl_Obj* const* objects) {
  CommonCmd::State& state = command->state();
  ParseOutcome outcome = ParseArguments(state, args);
  state.interp = interp;
  state.call_objects.assign(objects, objects + args.size());
  if (!outcome.ok) return Error(interp, outcome.error);
  if (outcome.help) {
    command->printUsage();
    FlushOutputs();
    Tcl_ResetResult(interp);
    return TCL_OK;
  }
  if (TclCmd* tcl_command = dynamic_cast<TclCmd*>(command)) {
    int code = tcl_command->run(interp);
    FlushOutputs();
    return code;
  }
  int status = 1;
  try {
    status = command->prevExec();
    if (status == 0) {
      status = command->exec();
      command->postExec();
    }
  } catch (const Interrupted&) {
    return Interrupt(interp);
  } catch (const std::bad_alloc&) {
    // What the command built is freed by now; readers catch this themselves
    // to name their file and keep the database as it was.
    FlushOutputs();
    std::string words;
    for (const std::string& arg : args) words += " " + arg;
    return Error(interp, state.name + ": out of memory (" + state.name + msg::Excerpt(words) + ")");
  } catch (const std::exception& failure) {
    FlushOutputs();
    return Error(interp, state.name + ": internal error: " + failure.what());
  }
  FlushOutputs();
  // A command that stopped at Ctrl-C reports that. One that finished all
  // the same keeps its result, and the script stops at its next safe point.
  if (InterruptPending()) {
    if (status != 0 || state.has_error) return Interrupt(interp);
    WakeInterrupt();
  }
  if (state.has_error) return Error(interp, state.error);
  // A report's status is its result and a failed report lets the script go
  // on; a host command that failed without saying why must not pass.
  if (status != 0 && !command->cmdModule()) return Error(interp, state.name + ": failed");
  if (state.has_result) {
    SetResult(interp, state);
    return TCL_OK;
  }
  Tcl_SetObjResult(interp, Tcl_NewIntObj(status));
  return TCL_OK;
}

// "command ... > file" and "command ... >> file" are short for redirect.
int RunCommand(ClientData data, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
  CommonCmd* command = static_cast<CommonCmd*>(data);
  std::vector<std::string> args;
  for (int i = 1; i < objc; ++i) args.emplace_back(Tcl_GetString(objv[i]));
  FlushOutputs();
  const size_t n = args.size();
  if (n < 2 || (args[n - 2] != ">" && args[n - 2] != ">>"))
    return RunParsed(command, interp, args, objv + 1);

  const std::string target = args[n - 1];
  const bool append = args[n - 2] == ">>";
  args.resize(n - 2);
  OutputCapture capture(false);
  std::string error;
  if (!capture.OpenFile(target, append, error)) {
    capture.Finish();
    return Error(interp, command->name() + ": " + error);
  }
  int code = RunParsed(command, interp, args, objv + 1);
  if (!capture.Finish() && code == TCL_OK)
    return Error(interp, command->name() + ": cannot write '" + target + "'");
  return code;
}

}  // namespace

Tcl_Obj* NewTextObj(std::string_view text) {
  const std::string valid = msg::ValidText(text);
  return Tcl_NewStringObj(valid.data(), static_cast<int>(valid.size()));
}

void FlushOutputs() {
  if (Tcl_Channel out = Tcl_GetStdChannel(TCL_STDOUT)) Tcl_Flush(out);
  std::fflush(stdout);
}

void BindCommands(Tcl_Interp* interp) {
  for (CommonCmd* command : CommandTable::Get().Commands()) {
    // Asked of the interpreter itself: a new interpreter may reuse the
    // address of a deleted one.
    Tcl_CmdInfo info;
    if (Tcl_GetCommandInfo(interp, command->name().c_str(), &info) && info.objProc == RunCommand &&
        info.objClientData == command)
      continue;
    Tcl_CreateObjCommand(interp, command->name().c_str(), RunCommand, command, nullptr);
  }
}

}  // namespace cmdlib
