#include "cmdlib/ArgParser.h"

#include <sys/stat.h>
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

bool ParseReal(const std::string& text, double& value) {
  if (text.empty()) return false;
  char* end = nullptr;
  errno = 0;
  value = std::strtod(text.c_str(), &end);
  return errno == 0 && end && *end == '\0';
}

bool ParseText(const std::string& text, std::string& value) {
  value = text;
  return true;
}

// Splits `text` as a Tcl list, reads each element, and appends the result to
// what earlier uses of the option gave. False when an element is refused.
template <class T, class ReadOne>
bool AppendList(ParsedOption& slot, const std::string& text, ReadOne read_one) {
  std::vector<std::string> words;
  if (!SplitTclList(text, words)) return false;
  std::vector<T> items;
  if (slot.count > 0 && !slot.value.empty()) items = boost::any_cast<std::vector<T>>(slot.value);
  for (const std::string& word : words) {
    T item{};
    if (!read_one(word, item)) return false;
    items.push_back(std::move(item));
  }
  slot.value = std::move(items);
  return true;
}

// A word that names something on disk is one file even with blanks in its
// name; any other word is split as a Tcl list.
bool AppendFiles(ParsedOption& slot, const std::string& text) {
  struct stat info;
  if (!text.empty() && ::stat(text.c_str(), &info) == 0) {
    std::vector<std::string> items;
    if (slot.count > 0 && !slot.value.empty())
      items = boost::any_cast<std::vector<std::string>>(slot.value);
    items.push_back(text);
    slot.value = std::move(items);
    return true;
  }
  return AppendList<std::string>(slot, text, ParseText);
}

bool StoreValue(CommonCmd::State& state, const OptionDecl& decl, const std::string& text,
                size_t arg_index, std::string& error) {
  ParsedOption& slot = state.parsed[decl.name];
  bool ok = true;
  const char* expected = "";
  switch (decl.type) {
    case ValueType::kInteger: {
      int number = 0;
      expected = "an integer";
      if ((ok = ParseInteger(text, number))) slot.value = number;
      break;
    }
    case ValueType::kDouble: {
      double real = 0;
      expected = "a number";
      if ((ok = ParseReal(text, real))) slot.value = real;
      break;
    }
    case ValueType::kStringList:
      expected = "a list";
      ok = AppendList<std::string>(slot, text, ParseText);
      break;
    case ValueType::kFileList:
      expected = "a list of files";
      ok = AppendFiles(slot, text);
      break;
    case ValueType::kIntegerList:
      expected = "a list of integers";
      ok = AppendList<int>(slot, text, ParseInteger);
      break;
    case ValueType::kDoubleList:
      expected = "a list of numbers";
      ok = AppendList<double>(slot, text, ParseReal);
      break;
    default:
      slot.value = text;
      break;
  }
  if (!ok) {
    const std::string shown = decl.positional ? decl.name : "-" + decl.name;
    error = state.name + ": option '" + shown + "' expects " + expected + ", got '" + text + "'";
    return false;
  }
  ++slot.count;
  slot.arg_indices.push_back(arg_index);
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
      ++i;
      if (!StoreValue(state, *decl, args[i], i, outcome.error)) {
        outcome.ok = false;
        return outcome;
      }
      continue;
    }
    const OptionDecl* target = nullptr;
    if (next_positional < positionals.size()) {
      target = positionals[next_positional++];
    } else if (!positionals.empty() && (positionals.back()->type == ValueType::kStringList ||
                                        positionals.back()->type == ValueType::kFileList)) {
      target = positionals.back();  // further bare words join the trailing list
    }
    if (!target) {
      outcome.ok = false;
      outcome.error = state.name + ": unexpected argument '" + arg + "'";
      return outcome;
    }
    if (!StoreValue(state, *target, arg, i, outcome.error)) {
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
