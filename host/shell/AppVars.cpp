#include "shell/AppVars.h"

#include <cstring>

namespace shell {
namespace {

// Checks a write to a setting's Tcl variable; a refused value is put back.
char* TraceWrite(ClientData data, Tcl_Interp* interp, const char* name, const char*, int flags) {
  AppVar* var = static_cast<AppVar*>(data);
  static std::string message;
  if (flags & TCL_TRACE_UNSETS) {
    // Unset: the variable comes back with its value.
    if (!(flags & TCL_INTERP_DESTROYED)) {
      Tcl_SetVar(interp, name, var->value.c_str(), TCL_GLOBAL_ONLY);
      Tcl_TraceVar(interp, name, TCL_GLOBAL_ONLY | TCL_TRACE_WRITES | TCL_TRACE_UNSETS, TraceWrite,
                   data);
    }
    return nullptr;
  }
  const char* given = Tcl_GetVar(interp, name, TCL_GLOBAL_ONLY);
  const std::string value = given ? given : "";
  if (value == var->value) return nullptr;
  std::string error;
  if (var->read_only) {
    error = "'" + var->name + "' cannot be set";
  } else if (var->apply && !var->apply(value, error)) {
    if (error.empty()) error = "bad value '" + value + "' for '" + var->name + "'";
  } else {
    var->value = value;
    return nullptr;
  }
  Tcl_SetVar(interp, name, var->value.c_str(), TCL_GLOBAL_ONLY);
  message = error;
  return const_cast<char*>(message.c_str());
}

}  // namespace

AppVars& AppVars::Get() {
  static AppVars vars;
  return vars;
}

AppVar* AppVars::Find(const std::string& name) {
  for (AppVar& var : vars_)
    if (var.name == name) return &var;
  return nullptr;
}

void AppVars::Install(Tcl_Interp* interp) {
  for (AppVar& var : vars_) {
    std::string error;
    if (var.apply) var.apply(var.value, error);
    Tcl_SetVar(interp, var.name.c_str(), var.value.c_str(), TCL_GLOBAL_ONLY);
    Tcl_TraceVar(interp, var.name.c_str(), TCL_GLOBAL_ONLY | TCL_TRACE_WRITES | TCL_TRACE_UNSETS,
                 TraceWrite, &var);
  }
}

bool AppVars::Set(Tcl_Interp* interp, const std::string& name, const std::string& value,
                  std::string& error) {
  if (!Tcl_SetVar(interp, name.c_str(), value.c_str(), TCL_GLOBAL_ONLY | TCL_LEAVE_ERR_MSG)) {
    error = Tcl_GetStringResult(interp);
    // Tcl says: can't set "x": <why>; the why is what matters.
    const size_t colon = error.find(": ");
    if (colon != std::string::npos) error = error.substr(colon + 2);
    return false;
  }
  return true;
}

bool ParseBool(const std::string& text, bool& value) {
  int flag = 0;
  if (Tcl_GetBoolean(nullptr, text.c_str(), &flag) != TCL_OK) return false;
  value = flag != 0;
  return true;
}

}  // namespace shell
