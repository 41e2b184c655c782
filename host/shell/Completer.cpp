#include "shell/Completer.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <set>

#include "cmdlib/CommandState.h"
#include "cmdlib/CommandTable.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Root.h"
#include "query/ObjectFinder.h"

namespace shell {
namespace {

constexpr size_t kMostCandidates = 5000;

// Commands whose bare arguments are files.
const char* const kFileCommands[] = {"read_liberty", "read_verilog", "read_sdc", "read_spef",
                                     "read_saif",    "read_vcd",     "source",   "redirect",
                                     "write_sdc",    "cd",           "open",     "file"};

enum class ObjectKind { kCells, kNets, kPins, kPorts, kLibs, kLibCells, kModules, kAny };

struct CommandObjects {
  const char* command;
  ObjectKind kind;
};

const CommandObjects kObjectsOf[] = {
    {"get_cells", ObjectKind::kCells},         {"report_cell", ObjectKind::kCells},
    {"get_nets", ObjectKind::kNets},           {"report_net", ObjectKind::kNets},
    {"report_net_fanout", ObjectKind::kNets},  {"get_pins", ObjectKind::kPins},
    {"get_fanin_pins", ObjectKind::kPins},     {"get_fanout_pins", ObjectKind::kPins},
    {"report_buffer_tree", ObjectKind::kPins}, {"get_ports", ObjectKind::kPorts},
    {"report_port", ObjectKind::kPorts},       {"get_libs", ObjectKind::kLibs},
    {"report_lib", ObjectKind::kLibs},         {"set_default_library", ObjectKind::kLibs},
    {"get_lib_cells", ObjectKind::kLibCells},  {"link_design", ObjectKind::kModules},
    {"current_design", ObjectKind::kModules},
};

bool StartsWith(const std::string& text, const std::string& prefix) {
  return text.compare(0, prefix.size(), prefix) == 0;
}

// The words of the command that the cursor is in, and where the last one
// (the one being completed) starts. An open [ or { begins a new command.
struct Words {
  std::vector<std::string> words;
  size_t last_start = 0;
};

Words SplitCommand(const std::string& text) {
  std::vector<size_t> starts{0};  // command starts, innermost last
  bool quoted = false;
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\\') {
      ++i;
    } else if (c == '"') {
      quoted = !quoted;
    } else if (c == '[' || (c == '{' && !quoted)) {
      starts.push_back(i + 1);
    } else if ((c == ']' || (c == '}' && !quoted)) && starts.size() > 1) {
      starts.pop_back();
    } else if ((c == ';' || c == '\n') && !quoted) {
      starts.back() = i + 1;
    }
  }
  Words result;
  const size_t begin = starts.back();
  size_t i = begin;
  while (true) {
    while (i < text.size() && std::isspace(static_cast<unsigned char>(text[i]))) ++i;
    size_t start = i;
    int depth = 0;
    while (i < text.size() && (depth > 0 || !std::isspace(static_cast<unsigned char>(text[i])))) {
      if (text[i] == '[' || text[i] == '{') ++depth;
      if ((text[i] == ']' || text[i] == '}') && depth > 0) --depth;
      ++i;
    }
    if (i >= text.size()) {
      result.words.push_back(text.substr(start));
      result.last_start = start;
      return result;
    }
    result.words.push_back(text.substr(start, i - start));
  }
}

void AddMatching(const std::vector<std::string>& names, const std::string& prefix,
                 std::set<std::string>& into) {
  for (const std::string& name : names) {
    if (into.size() >= kMostCandidates) return;
    if (StartsWith(name, prefix)) into.insert(name);
  }
}

void CompleteFiles(const std::string& word, std::set<std::string>& into) {
  const size_t slash = word.rfind('/');
  const std::string folder_as_typed = slash == std::string::npos ? "" : word.substr(0, slash + 1);
  const std::string leaf = slash == std::string::npos ? word : word.substr(slash + 1);
  std::string folder = folder_as_typed.empty() ? "." : folder_as_typed;
  if (folder[0] == '~') {
    const char* home = std::getenv("HOME");
    folder = std::string(home ? home : "") + folder.substr(1);
  }
  DIR* dir = opendir(folder.c_str());
  if (!dir) return;
  while (dirent* entry = readdir(dir)) {
    const std::string name = entry->d_name;
    if (name == "." || name == ".." || !StartsWith(name, leaf)) continue;
    if (leaf.empty() && name[0] == '.') continue;  // hidden files only when asked for
    struct stat info;
    const bool is_folder =
        ::stat((folder + "/" + name).c_str(), &info) == 0 && S_ISDIR(info.st_mode);
    into.insert(folder_as_typed + name + (is_folder ? "/" : ""));
    if (into.size() >= kMostCandidates) break;
  }
  closedir(dir);
}

void CompleteObjects(ObjectKind kind, const std::string& word, std::set<std::string>& into) {
  cdm::Root* root = cdm::DbManager::GetRoot();
  const cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  // The typed start is matched literally: glob characters in it stay as typed.
  const std::string pattern = word + "*";
  std::vector<query::ObjectRef> found;
  std::string error;
  std::vector<std::string> names;
  switch (kind) {
    case ObjectKind::kLibs:
      query::FindLibs(pattern, {}, found, error);
      break;
    case ObjectKind::kLibCells:
      query::FindLibCells(word.find('/') == std::string::npos ? "*/" + pattern : pattern, {}, found,
                          error);
      break;
    case ObjectKind::kModules:
      for (const cdm::Design* module : root->Designs()) names.push_back(module->Name());
      break;
    default:
      if (!design) break;
      if (kind == ObjectKind::kCells || kind == ObjectKind::kAny)
        query::FindCells(design, pattern, {}, found, error);
      if (kind == ObjectKind::kNets || kind == ObjectKind::kAny)
        query::FindNets(design, pattern, {}, found, error);
      if (kind == ObjectKind::kPins) query::FindPins(design, pattern, {}, found, error);
      if (kind == ObjectKind::kPorts || kind == ObjectKind::kAny)
        query::FindPorts(design, pattern, {}, found, error);
      break;
  }
  for (const query::ObjectRef& ref : found) names.push_back(query::FullName(ref));
  AddMatching(names, word, into);
}

}  // namespace

std::string Completer::CommonPrefix(const std::vector<std::string>& candidates) {
  if (candidates.empty()) return "";
  std::string prefix = candidates.front();
  for (const std::string& candidate : candidates) {
    size_t n = 0;
    while (n < prefix.size() && n < candidate.size() && prefix[n] == candidate[n]) ++n;
    prefix.resize(n);
  }
  return prefix;
}

Completion Completer::Complete(const std::string& line, size_t cursor) const {
  const std::string text = line.substr(0, std::min(cursor, line.size()));
  Words split = SplitCommand(text);
  const std::string& word = split.words.back();
  Completion completion;
  completion.start = split.last_start;
  std::set<std::string> found;

  // The interpreter's lists of names, asked without running anything typed.
  auto ask_names = [this](const char* what) {
    std::vector<std::string> names;
    Tcl_InterpState saved = Tcl_SaveInterpState(interp_, TCL_OK);
    Tcl_Obj* words[2] = {Tcl_NewStringObj("::info", -1), Tcl_NewStringObj(what, -1)};
    for (Tcl_Obj* one : words) Tcl_IncrRefCount(one);
    if (Tcl_EvalObjv(interp_, 2, words, TCL_EVAL_GLOBAL) == TCL_OK) {
      int count = 0;
      Tcl_Obj** items = nullptr;
      if (Tcl_ListObjGetElements(nullptr, Tcl_GetObjResult(interp_), &count, &items) == TCL_OK)
        for (int i = 0; i < count; ++i) names.emplace_back(Tcl_GetString(items[i]));
    }
    for (Tcl_Obj* one : words) Tcl_DecrRefCount(one);
    Tcl_RestoreInterpState(interp_, saved);
    return names;
  };

  const std::string command = split.words.front();
  const std::string previous =
      split.words.size() >= 2 ? split.words[split.words.size() - 2] : std::string();
  if (split.words.size() == 1) {
    AddMatching(ask_names("commands"), word, found);
  } else if (!word.empty() && word[0] == '$') {
    std::vector<std::string> names;
    for (const std::string& name : ask_names("globals")) names.push_back("$" + name);
    AddMatching(names, word, found);
  } else if (!word.empty() && word[0] == '-') {
    if (CommonCmd* known = cmdlib::CommandTable::Get().Find(command.c_str())) {
      for (const OptionDecl& option : known->state().options)
        if (!option.positional && StartsWith("-" + option.name, word))
          found.insert("-" + option.name);
    }
  } else {
    bool files = previous == ">" || previous == ">>" || StartsWith(word, "/") ||
                 StartsWith(word, "./") || StartsWith(word, "../") || StartsWith(word, "~");
    for (const char* file_command : kFileCommands) files = files || command == file_command;
    if (files) {
      CompleteFiles(word, found);
      completion.file_names = true;
    } else {
      ObjectKind kind = ObjectKind::kAny;
      for (const CommandObjects& entry : kObjectsOf)
        if (command == entry.command) kind = entry.kind;
      // Every object of a large design is no help: a start is needed.
      if (kind != ObjectKind::kAny || !word.empty()) CompleteObjects(kind, word, found);
    }
  }
  completion.candidates.assign(found.begin(), found.end());
  return completion;
}

}  // namespace shell
