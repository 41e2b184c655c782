// What the host keeps per command: its declared options and the values of
// the call in progress.
#pragma once

#include <any>
#include <map>
#include <string>
#include <vector>

#include <boost/any.hpp>

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

  const OptionDecl* Find(const std::string& option) const;
  void ResetCall();
};
