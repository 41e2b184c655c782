#include "cmdlib/ArgParser.h"

#include <tcl.h>

#include <cerrno>
#include <climits>
#include <cstdlib>

namespace cmdlib {
namespace {

bool LooksLikeOption(const std::string& arg) {
  if (arg.size() < 2 || arg[0] != '-') return false;
  // A negative number is a value, not an option.
  char* end = nullptr;
  std::strtod(arg.c_str(), &end);
  return !(end && *end == '\0');
}

bool ParseInteger(const std::string& text, int& value) {
  if (text.empty()) return false;
  char* end = nullptr;
  errno = 0;
  long parsed = std::strtol(text.c_str(), &end, 10);
  if (errno != 0 || !end || *end != '\0' || parsed < INT_MIN || parsed > INT_MAX) return false;
  value = static_cast<int>(parsed);
  return true;
}

// The declared dash option that `word` (without its dash) names, exactly or
// as a unique prefix.
const OptionDecl* MatchOption(const CommonCmd::State& state, const std::string& word,
                              std::string& error) {
  std::vector<const OptionDecl*> candidates;
  for (const OptionDecl& decl : state.options) {
    if (decl.positional) continue;
    if (decl.name == word) return &decl;
    if (decl.name.compare(0, word.size(), word) == 0) candidates.push_back(&decl);
  }
  if (candidates.size() == 1) return candidates.front();
  if (candidates.empty()) {
    error = state.name + ": unknown option '-" + word + "'";
  } else {
    error = state.name + ": ambiguous option '-" + word + "' could be:";
    for (const OptionDecl* decl : candidates) error += " -" + decl->name;
  }
  return nullptr;
}

bool StoreValue(CommonCmd::State& state, const OptionDecl& decl, const std::string& text,
                std::string& error) {
  ParsedOption& slot = state.parsed[decl.name];
  const std::string shown = decl.positional ? decl.name : "-" + decl.name;
  switch (decl.type) {
    case ValueType::kInteger: {
      int number = 0;
      if (!ParseInteger(text, number)) {
        error = state.name + ": option '" + shown + "' expects an integer, got '" + text + "'";
        return false;
      }
      slot.value = number;
      break;
    }
    case ValueType::kDouble: {
      char* end = nullptr;
      double real = std::strtod(text.c_str(), &end);
      if (text.empty() || !end || *end != '\0') {
        error = state.name + ": option '" + shown + "' expects a number, got '" + text + "'";
        return false;
      }
      slot.value = real;
      break;
    }
    case ValueType::kStringList: {
      std::vector<std::string> items;
      if (!SplitTclList(text, items)) {
        error = state.name + ": option '" + shown + "' expects a list, got '" + text + "'";
        return false;
      }
      if (slot.count > 0 && !slot.value.empty()) {
        auto merged = boost::any_cast<std::vector<std::string>>(slot.value);
        merged.insert(merged.end(), items.begin(), items.end());
        items = std::move(merged);
      }
      slot.value = items;
      break;
    }
    default:
      slot.value = text;
      break;
  }
  ++slot.count;
  return true;
}

}  // namespace

bool SplitTclList(const std::string& text, std::vector<std::string>& items) {
  int count = 0;
  const char** elements = nullptr;
  if (Tcl_SplitList(nullptr, text.c_str(), &count, &elements) != TCL_OK) return false;
  for (int i = 0; i < count; ++i) items.emplace_back(elements[i]);
  Tcl_Free(reinterpret_cast<char*>(elements));
  return true;
}

namespace {

ParseOutcome ParseInto(CommonCmd::State& state, const std::vector<std::string>& args) {
  ParseOutcome outcome;
  std::vector<const OptionDecl*> positionals;
  for (const OptionDecl& decl : state.options)
    if (decl.positional) positionals.push_back(&decl);
  size_t next_positional = 0;

  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (LooksLikeOption(arg)) {
      const OptionDecl* decl = MatchOption(state, arg.substr(1), outcome.error);
      if (!decl) {
        outcome.ok = false;
        return outcome;
      }
      if (decl->name == "help") {
        outcome.help = true;
        continue;
      }
      if (decl->type == ValueType::kFlag) {
        ++state.parsed[decl->name].count;
        continue;
      }
      if (i + 1 >= args.size()) {
        outcome.ok = false;
        outcome.error = state.name + ": option '-" + decl->name + "' needs a value";
        return outcome;
      }
      if (!StoreValue(state, *decl, args[++i], outcome.error)) {
        outcome.ok = false;
        return outcome;
      }
      continue;
    }
    const OptionDecl* target = nullptr;
    if (next_positional < positionals.size()) {
      target = positionals[next_positional++];
    } else if (!positionals.empty() && positionals.back()->type == ValueType::kStringList) {
      target = positionals.back();  // further bare words join the trailing list
    }
    if (!target) {
      outcome.ok = false;
      outcome.error = state.name + ": unexpected argument '" + arg + "'";
      return outcome;
    }
    if (!StoreValue(state, *target, arg, outcome.error)) {
      outcome.ok = false;
      return outcome;
    }
  }
  return outcome;
}

}  // namespace

ParseOutcome ParseArguments(CommonCmd::State& state, const std::vector<std::string>& args) {
  state.ResetCall();
  ParseOutcome outcome = ParseInto(state, args);
  if (!outcome.ok) state.ResetCall();  // a refused call leaves no values behind
  return outcome;
}

}  // namespace cmdlib
