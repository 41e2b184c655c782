#include "query/QueryCmd.h"

#include <boost/any.hpp>
#include <cctype>
#include <unordered_set>

#include "cmdlib/CommandState.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Object.h"
#include "msg/HostMsg.h"
#include "query/Collection.h"
#include "query/FilterExpr.h"
#include "query/NameMatcher.h"
#include "query/ObjectArgs.h"
#include "sdc/SdcSource.h"

namespace query {
namespace {

std::vector<std::string> SplitAtBlanks(const std::string& text) {
  std::vector<std::string> words;
  std::string word;
  for (char c : text) {
    if (std::isspace(static_cast<unsigned char>(c))) {
      if (!word.empty()) words.push_back(std::move(word));
      word.clear();
    } else {
      word.push_back(c);
    }
  }
  if (!word.empty()) words.push_back(std::move(word));
  return words;
}

struct RefHash {
  size_t operator()(const ObjectRef& ref) const {
    return std::hash<void*>()(ref.object) ^ static_cast<size_t>(ref.kind);
  }
};

}  // namespace

void SetCollectionResult(CommonCmd& command, std::vector<ObjectRef> refs) {
  command.state().SetResultObject(NewCollection(std::move(refs)));
}

QueryCmd::QueryCmd(const char* name, const char* description, Shape shape)
    : CommonCmd(name, description, nullptr), shape_(std::move(shape)) {
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  if (shape_.hierarchical)
    addOptions("hierarchical", "Search every level of the hierarchy", false, ValueType::kFlag,
               std::any());
  addOptions("regexp", "Patterns are regular expressions", false, ValueType::kFlag, std::any());
  addOptions("nocase", "Match without regard to case", false, ValueType::kFlag, std::any());
  addOptions("quiet", "Say nothing when nothing matches", false, ValueType::kFlag, std::any());
  if (!shape_.of_kinds.empty())
    addOptions("of_objects", "Objects whose related objects to get", false, ValueType::kStringList,
               std::any());
  addOptions("filter", "Keep only the objects for which the expression holds", false,
             ValueType::kString, std::any());
  addOptions("patterns", "Name patterns (* and ?)", true, ValueType::kStringList, std::any());
}

void QueryCmd::Related(const ObjectRef&, std::vector<ObjectRef>&) {}

int QueryCmd::exec() {
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  if (!design && shape_.needs_design) {
    SetTclError(name() + ": no current design; run link_design first");
    return 1;
  }
  FindOptions options;
  options.regexp = getOptionValue("regexp");
  options.nocase = getOptionValue("nocase");
  options.hierarchical = getOptionValue("hierarchical");
  const bool quiet = getOptionValue("quiet");
  boost::any value;
  std::vector<std::string> patterns;
  if (options.regexp) {
    // Regular expressions keep their backslashes: split at blanks only.
    auto found = state().parsed.find("patterns");
    if (found != state().parsed.end())
      for (size_t index : found->second.arg_indices)
        for (std::string& word : SplitAtBlanks(Tcl_GetString(state().call_objects.at(index))))
          patterns.push_back(std::move(word));
  } else if (getOptionValue("patterns", value)) {
    patterns = boost::any_cast<std::vector<std::string>>(value);
  }
  std::string filter_text;
  if (getOptionValue("filter", value)) filter_text = boost::any_cast<std::string>(value);
  // A blank filter keeps everything, as an empty one does.
  if (filter_text.find_first_not_of(" \t\r\n") == std::string::npos) filter_text.clear();
  FilterExpr filter(filter_text, options);
  if (!filter_text.empty() && !filter.Valid()) {
    SetTclError(name() + ": " + filter.Error());
    return 1;
  }

  std::vector<ObjectRef> found;
  std::string error;
  const char separator = CurrentSeparator();
  if (getOptionCount("of_objects") > 0) {
    ObjectArgs args;
    if (!ResolveOption(*this, "of_objects", shape_.of_kinds, MatchOptions{}, separator, args,
                       error)) {
      SetTclError(name() + ": " + error);
      return 1;
    }
    if (!quiet) {
      const msg::Location where = sta::sdc::SdcSource::Where();
      for (const std::string& unknown : args.unmatched)
        msg::HostMsg(SDC_001, {name(), KindsText(shape_.of_kinds), unknown}, where);
      for (const ObjectRef& ref : args.wrong_kind)
        msg::HostMsg(SDC_002,
                     {name(), KindName(ref.kind), FullName(ref), KindsText(shape_.of_kinds)},
                     where);
    }
    std::vector<ObjectRef> related;
    for (const ObjectRef& of : args.objects) Related(of, related);
    std::unordered_set<ObjectRef, RefHash> seen;
    std::vector<NameMatcher> matchers;
    for (const std::string& pattern : patterns) matchers.emplace_back(pattern, options);
    for (const ObjectRef& ref : related) {
      if (!seen.insert(ref).second) continue;
      bool named = matchers.empty();
      for (const NameMatcher& matcher : matchers)
        named = named || matcher.Matches(AsObject(ref)->Name());
      if (named) found.push_back(ref);
    }
  } else {
    const bool all = patterns.empty();
    // Without patterns every object is found: the pattern that stands for
    // them is a glob, also under -regexp.
    FindOptions find_options = options;
    if (all) {
      patterns.push_back(AllPattern());
      find_options.regexp = false;
    }
    for (const std::string& pattern : patterns) {
      const size_t before = found.size();
      // Hierarchical names may be written with set_hierarchy_separator's
      // character; regular expressions are taken as written.
      const bool translate = shape_.hierarchical && !find_options.regexp;
      if (!Find(design, translate ? WithDatabaseSeparator(pattern, separator) : pattern,
                find_options, found, error)) {
        SetTclError(name() + ": " + error);
        return 1;
      }
      if (found.size() == before && !all && !quiet)
        msg::HostMsg(QUERY_001, {shape_.plural, pattern}, sta::sdc::SdcSource::Where());
    }
  }
  if (!filter_text.empty()) {
    std::vector<ObjectRef> kept;
    for (const ObjectRef& ref : found) {
      if (filter.Matches(ref, error)) kept.push_back(ref);
      if (!error.empty()) {
        SetTclError(name() + ": " + error);
        return 1;
      }
    }
    found.swap(kept);
  }
  SetCollectionResult(*this, std::move(found));
  return 0;
}

}  // namespace query
