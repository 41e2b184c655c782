#include "hostapi/cmd/CommonCmd.h"

#include <cstdio>

#include "cmdlib/CommandState.h"
#include "cmdlib/CommandTable.h"

namespace {

// Defaults are declared as std::any and handed out as boost::any.
bool DefaultAsValue(const OptionDecl& decl, boost::any& value) {
  const std::any& given = decl.default_value;
  if (!given.has_value()) return false;
  if (const int* number = std::any_cast<int>(&given)) {
    value = *number;
  } else if (const std::string* text = std::any_cast<std::string>(&given)) {
    value = *text;
  } else if (const char* const* literal = std::any_cast<const char*>(&given)) {
    value = std::string(*literal);
  } else if (const auto* list = std::any_cast<std::vector<std::string>>(&given)) {
    value = *list;
  } else if (const double* real = std::any_cast<double>(&given)) {
    value = *real;
  } else {
    return false;  // a flag's default says nothing about the call
  }
  return true;
}

}  // namespace

const OptionDecl* CommonCmd::State::Find(const std::string& option) const {
  for (const OptionDecl& decl : options)
    if (decl.name == option) return &decl;
  return nullptr;
}

void CommonCmd::State::ResetCall() {
  parsed.clear();
  has_result = false;
  result.clear();
  result_list.clear();
  result_is_list = false;
  has_error = false;
  error.clear();
  SetResultObject(nullptr);
}

void CommonCmd::State::SetResultObject(Tcl_Obj* object) {
  if (object) Tcl_IncrRefCount(object);
  if (result_object) Tcl_DecrRefCount(result_object);
  result_object = object;
  if (object) has_result = true;
}

CommonCmd::CommonCmd(const char* name, const char* description, const char*)
    : state_(std::make_unique<State>()) {
  state_->name = name ? name : "";
  state_->description = description ? description : "";
  cmdlib::CommandTable::Get().Add(this);
}

CommonCmd::~CommonCmd() {
  cmdlib::CommandTable::Get().Remove(this);
}

void CommonCmd::printUsage() {
  std::printf("Usage: %s    #  %s\n", state_->name.c_str(), state_->description.c_str());
  for (const OptionDecl& decl : state_->options) {
    if (decl.name == "help") continue;
    std::string left = "        [" + std::string(decl.positional ? "" : "-") + decl.name + "]";
    if (left.size() >= 31)
      std::printf("%s\n%31s(%s)\n", left.c_str(), "", decl.help.c_str());
    else
      std::printf("%-31s(%s)\n", left.c_str(), decl.help.c_str());
  }
}

void CommonCmd::addOptions(std::string name, std::string help, bool positional, ValueType type,
                           std::any default_value) {
  state_->options.push_back(
      OptionDecl{std::move(name), std::move(help), positional, type, std::move(default_value)});
}

int CommonCmd::getOptionCount(std::string name) {
  auto found = state_->parsed.find(name);
  return found == state_->parsed.end() ? 0 : found->second.count;
}

bool CommonCmd::getOptionValue(const std::string& name) {
  return getOptionCount(name) > 0;
}

bool CommonCmd::getOptionValue(const std::string& name, boost::any& value) {
  auto found = state_->parsed.find(name);
  if (found != state_->parsed.end() && found->second.count > 0 && !found->second.value.empty()) {
    value = found->second.value;
    return true;
  }
  const OptionDecl* decl = state_->Find(name);
  return decl && DefaultAsValue(*decl, value);
}

const std::string& CommonCmd::name() const {
  return state_->name;
}
const std::string& CommonCmd::description() const {
  return state_->description;
}

void CommonCmd::SetTclResult(std::string value) {
  state_->SetResultObject(nullptr);
  state_->has_result = true;
  state_->result_is_list = false;
  state_->result = std::move(value);
}

void CommonCmd::SetTclResultList(std::vector<std::string> items) {
  state_->SetResultObject(nullptr);
  state_->has_result = true;
  state_->result_is_list = true;
  state_->result_list = std::move(items);
}

void CommonCmd::SetTclError(std::string message) {
  state_->has_error = true;
  state_->error = std::move(message);
}
