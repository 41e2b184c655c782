// What the host keeps per command: its declared options and the values of
// the call in progress.
#pragma once

#include <any>
#include <map>
#include <string>
#include <vector>

#include <boost/any.hpp>

#include <tcl.h>

#include "hostapi/cmd/CommonCmd.h"

struct OptionDecl {
  std::string name;
  std::string help;
  bool positional = false;
  ValueType type = ValueType::kFlag;
  std::any default_value;
};

struct ParsedOption {
  int count = 0;
  boost::any value;
  // Where each value stood among the call's arguments (an index into
  // CommonCmd::State::call_objects), one per use of the option.
  std::vector<size_t> arg_indices;
};

struct CommonCmd::State {
  std::string name;
  std::string description;
  std::vector<OptionDecl> options;

  // The call in progress.
  std::map<std::string, ParsedOption> parsed;
  bool has_result = false;
  std::string result;
  std::vector<std::string> result_list;
  bool result_is_list = false;
  bool has_error = false;
  std::string error;
  // Host commands only: the interpreter and the argument objects of the
  // call in progress (the command name left out), so that a command can
  // read the objects behind its option values or run a script; and a
  // result that is a Tcl object of its own (one reference held).
  Tcl_Interp* interp = nullptr;
  std::vector<Tcl_Obj*> call_objects;
  Tcl_Obj* result_object = nullptr;
  void SetResultObject(Tcl_Obj* object);

  const OptionDecl* Find(const std::string& option) const;
  void ResetCall();
};
