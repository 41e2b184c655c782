#include "cmdlib/TclBinding.h"

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "cmdlib/ArgParser.h"
#include "cmdlib/CommandState.h"
#include "cmdlib/CommandTable.h"

namespace cmdlib {
namespace {

void SetResult(Tcl_Interp* interp, const CommonCmd::State& state) {
  if (state.result_object) {
    Tcl_SetObjResult(interp, state.result_object);
    return;
  }
  if (!state.result_is_list) {
    Tcl_SetObjResult(interp, Tcl_NewStringObj(state.result.c_str(), -1));
    return;
  }
  Tcl_Obj* list = Tcl_NewListObj(0, nullptr);
  for (const std::string& item : state.result_list)
    Tcl_ListObjAppendElement(interp, list, Tcl_NewStringObj(item.c_str(), -1));
  Tcl_SetObjResult(interp, list);
}

// parse, prevExec, exec when prevExec passed, postExec.
int RunCommand(ClientData data, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
  CommonCmd* command = static_cast<CommonCmd*>(data);
  CommonCmd::State& state = command->state();
  std::vector<std::string> args;
  for (int i = 1; i < objc; ++i) args.emplace_back(Tcl_GetString(objv[i]));

  FlushOutputs();
  ParseOutcome outcome = ParseArguments(state, args);
  state.interp = interp;
  state.call_objects.assign(objv + 1, objv + objc);
  if (!outcome.ok) {
    Tcl_SetObjResult(interp, Tcl_NewStringObj(("Error: " + outcome.error).c_str(), -1));
    return TCL_ERROR;
  }
  if (outcome.help) {
    command->printUsage();
    FlushOutputs();
    Tcl_ResetResult(interp);
    return TCL_OK;
  }
  int status = 1;
  try {
    status = command->prevExec();
    if (status == 0) {
      status = command->exec();
      command->postExec();
    }
  } catch (const std::exception& failure) {
    FlushOutputs();
    std::string message = "Error: " + state.name + ": internal error: " + failure.what();
    Tcl_SetObjResult(interp, Tcl_NewStringObj(message.c_str(), -1));
    return TCL_ERROR;
  }
  FlushOutputs();
  if (state.has_error) {
    Tcl_SetObjResult(interp, Tcl_NewStringObj(("Error: " + state.error).c_str(), -1));
    return TCL_ERROR;
  }
  // A report's status is its result and a failed report lets the script go
  // on; a host command that failed without saying why must not pass.
  if (status != 0 && !command->cmdModule()) {
    std::string message = "Error: " + state.name + ": failed";
    Tcl_SetObjResult(interp, Tcl_NewStringObj(message.c_str(), -1));
    return TCL_ERROR;
  }
  if (state.has_result) {
    SetResult(interp, state);
    return TCL_OK;
  }
  Tcl_SetObjResult(interp, Tcl_NewIntObj(status));
  return TCL_OK;
}

}  // namespace

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
