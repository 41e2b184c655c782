#include "query/ObjectFinder.h"

#include <memory>
#include <unordered_map>
#include <unordered_set>

#include "db/NetNames.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/DesignIterators.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"

namespace query {
namespace {

// Orders objects found in a depth-first walk level by level: all objects
// of one netlist, then those of the netlists below it, each netlist in the
// order the walk first reached it.
template <class T>
std::vector<T*> ByNetlist(const std::vector<T*>& walked, cdm::Netlist* (*netlist_of)(const T*)) {
  std::unordered_map<cdm::Netlist*, size_t> slot;
  std::vector<std::vector<T*>> groups;
  for (T* object : walked) {
    auto inserted = slot.emplace(netlist_of(object), groups.size());
    if (inserted.second) groups.emplace_back();
    groups[inserted.first->second].push_back(object);
  }
  std::vector<T*> ordered;
  ordered.reserve(walked.size());
  for (auto& group : groups) ordered.insert(ordered.end(), group.begin(), group.end());
  return ordered;
}

cdm::Netlist* CellNetlist(const cdm::Cell* cell) {
  return cell->GetNetlist();
}

std::vector<cdm::Cell*> WalkCells(const cdm::Design* design, bool deep) {
  std::vector<cdm::Cell*> cells;
  std::unique_ptr<cdm::Iterator<cdm::Cell>> it(
      new cdm::DesignCellIterator(design, deep, cdm::func<cdm::Cell>));
  while (it->HasNext()) cells.push_back(it->Next());
  return deep ? ByNetlist(cells, CellNetlist) : cells;
}

// The tie nets of bare constants are no nets of the design's text.
bool IsTieNet(const cdm::Net* net) {
  return net->Name() == "*logic0*" || net->Name() == "*logic1*";
}

bool Invalid(const NameMatcher& matcher, std::string& error) {
  if (matcher.Valid()) return false;
  error = matcher.Error();
  return true;
}

// Whether `matcher` takes the full name `full`, or with `anywhere` one of
// its tails that start a level ("b1/u_and" of "top_blk/b1/u_and").
bool MatchesPath(const NameMatcher& matcher, std::string_view full, bool anywhere) {
  if (matcher.Matches(full)) return true;
  if (!anywhere) return false;
  for (size_t slash = full.find('/'); slash != std::string_view::npos;
       slash = full.find('/', slash + 1))
    if (matcher.Matches(full.substr(slash + 1))) return true;
  return false;
}

// Walks cells or nets for a pattern: a plain full name is looked up; else
// local names at the top, full names through the hierarchy for a pattern
// with "/", local names everywhere with -hierarchical, and with both the
// names below any level.
template <class T, class Walk, class Lookup>
bool FindByPattern(const cdm::Design* design, const std::string& pattern,
                   const FindOptions& options, ObjectKind kind, Walk walk, Lookup lookup,
                   std::vector<ObjectRef>& found, std::string& error) {
  if (!design) return true;
  const bool by_path = pattern.find('/') != std::string::npos;
  NameMatcher matcher(pattern, options, by_path);
  if (Invalid(matcher, error)) return false;
  if (matcher.IsLiteral() && !options.hierarchical) {
    if (T* object = lookup(pattern)) found.push_back({kind, object});
    return true;
  }
  for (T* object : walk(design, options.hierarchical || by_path)) {
    if (by_path ? MatchesPath(matcher, object->GetFullName(), options.hierarchical)
                : matcher.Matches(object->Name()))
      found.push_back({kind, object});
  }
  return true;
}

}  // namespace

bool FindCells(const cdm::Design* design, const std::string& pattern, const FindOptions& options,
               std::vector<ObjectRef>& found, std::string& error) {
  return FindByPattern<cdm::Cell>(design, pattern, options, ObjectKind::kCell, WalkCells,
                                  cdm::DbManager::FindCell, found, error);
}

bool FindNets(const cdm::Design* design, const std::string& pattern, const FindOptions& options,
              std::vector<ObjectRef>& found, std::string& error) {
  if (!design) return true;
  const bool by_path = pattern.find('/') != std::string::npos;
  NameMatcher matcher(pattern, options, by_path);
  if (Invalid(matcher, error)) return false;
  if (matcher.IsLiteral() && !options.hierarchical) {
    cdm::Net* net = cdm::DbManager::FindNet(pattern);
    if (net && !IsTieNet(net)) found.push_back({ObjectKind::kNet, net});
    return true;
  }
  // Every name a net goes by, also the names an assign merged into it; a
  // net is listed once, under the first of its names that matches.
  std::unordered_set<const cdm::Net*> seen;
  std::string full;
  cdm::ForEachNetName(
      design, options.hierarchical || by_path,
      [&](cdm::Net* net, std::string_view path, std::string_view name) {
        if (seen.count(net)) return;
        if (by_path) {
          full.assign(path);
          full += name;
        }
        if (by_path ? MatchesPath(matcher, full, options.hierarchical) : matcher.Matches(name)) {
          seen.insert(net);
          found.push_back({ObjectKind::kNet, net});
        }
      });
  return true;
}

bool FindPins(const cdm::Design* design, const std::string& pattern, const FindOptions& options,
              std::vector<ObjectRef>& found, std::string& error) {
  if (!design) return true;
  // A pin's name is its cell's and its own, "u1/A". A pattern without "/"
  // names pins only under -hierarchical: those of that name on every cell
  // at every level ("get_pins -hierarchical *" is all of them).
  const size_t slash = pattern.rfind('/');
  if (slash == std::string::npos && !options.hierarchical) return true;
  const std::string cell_pattern = slash == std::string::npos ? "*" : pattern.substr(0, slash);
  NameMatcher pin_matcher(slash == std::string::npos ? pattern : pattern.substr(slash + 1),
                          options);
  if (Invalid(pin_matcher, error)) return false;
  std::vector<ObjectRef> cells;
  if (!FindCells(design, cell_pattern, options, cells, error)) return false;
  for (const ObjectRef& ref : cells) {
    auto* cell = static_cast<cdm::Cell*>(ref.object);
    if (pin_matcher.IsLiteral()) {
      if (cdm::Pin* pin = cell->FindPin(pin_matcher.Pattern()))
        found.push_back({ObjectKind::kPin, pin});
      continue;
    }
    for (uint32_t i = 0; i < cell->PinCount(); ++i)
      if (pin_matcher.Matches(cell->GetPin(i)->Name()))
        found.push_back({ObjectKind::kPin, cell->GetPin(i)});
  }
  return true;
}

bool FindPorts(const cdm::Design* design, const std::string& pattern, const MatchOptions& options,
               std::vector<ObjectRef>& found, std::string& error) {
  if (!design) return true;
  NameMatcher matcher(pattern, options);
  if (Invalid(matcher, error)) return false;
  if (matcher.IsLiteral()) {
    if (cdm::Port* port = design->FindPort(pattern)) {
      found.push_back({ObjectKind::kPort, port});
      return true;
    }
  }
  for (cdm::Port* port : design->Ports()) {
    const bool bus_match = port->GetBus() && matcher.Matches(port->GetBus()->Name());
    if (bus_match || matcher.Matches(port->Name())) found.push_back({ObjectKind::kPort, port});
  }
  return true;
}

bool FindClocks(const std::string& pattern, const MatchOptions& options,
                std::vector<ObjectRef>& found, std::string& error) {
  NameMatcher matcher(pattern, options);
  if (Invalid(matcher, error)) return false;
  for (sta::sdc::Clock* clock : sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr)->getClocks())
    if (matcher.Matches(clock->Name())) found.push_back({ObjectKind::kClock, clock});
  return true;
}

bool FindLibs(const std::string& pattern, const MatchOptions& options,
              std::vector<ObjectRef>& found, std::string& error) {
  NameMatcher matcher(pattern, options);
  if (Invalid(matcher, error)) return false;
  for (cdm::LibertyLib* lib : cdm::DbManager::GetRoot()->LibertyLibs())
    if (matcher.Matches(lib->Name())) found.push_back({ObjectKind::kLibrary, lib});
  return true;
}

bool FindLibCells(const std::string& pattern, const MatchOptions& options,
                  std::vector<ObjectRef>& found, std::string& error) {
  const size_t slash = pattern.find('/');
  NameMatcher lib_matcher(slash == std::string::npos ? "*" : pattern.substr(0, slash),
                          slash == std::string::npos ? MatchOptions{} : options);
  NameMatcher cell_matcher(slash == std::string::npos ? pattern : pattern.substr(slash + 1),
                           options);
  if (Invalid(lib_matcher, error) || Invalid(cell_matcher, error)) return false;
  for (cdm::LibertyLib* lib : cdm::DbManager::GetRoot()->LibertyLibs()) {
    if (!lib_matcher.Matches(lib->Name())) continue;
    if (cell_matcher.IsLiteral()) {
      if (cdm::LibCell* cell = lib->GetLibCell(cell_matcher.Pattern()))
        found.push_back({ObjectKind::kLibCell, cell});
      continue;
    }
    for (cdm::LibCell* cell : lib->GetLibCells())
      if (cell_matcher.Matches(cell->Name())) found.push_back({ObjectKind::kLibCell, cell});
  }
  return true;
}

bool FindLibPins(const std::string& pattern, const MatchOptions& options,
                 std::vector<ObjectRef>& found, std::string& error) {
  const size_t slash = pattern.rfind('/');
  if (slash == std::string::npos) return true;
  NameMatcher pin_matcher(pattern.substr(slash + 1), options);
  if (Invalid(pin_matcher, error)) return false;
  std::vector<ObjectRef> cells;
  if (!FindLibCells(pattern.substr(0, slash), options, cells, error)) return false;
  for (const ObjectRef& ref : cells)
    for (cdm::LibPort* port : static_cast<cdm::LibCell*>(ref.object)->GetPorts())
      if (pin_matcher.Matches(port->Name())) found.push_back({ObjectKind::kLibPin, port});
  return true;
}

}  // namespace query
