#include "db/DesignQuery.h"

#include <functional>

#include "db/Glob.h"
#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Root.h"

namespace cdm {
namespace {

// Calls `visit` for each netlist of the hierarchy below `netlist`, itself
// included, depth first.
void ForEachNetlist(Netlist* netlist, const std::function<void(Netlist*)>& visit) {
  visit(netlist);
  for (Cell& cell : netlist->Cells())
    if (cell.GetChildNetlist()) ForEachNetlist(cell.GetChildNetlist(), visit);
}

// Walks the netlists a pattern can reach and says whether an object's
// local or full name matches it.
class Scope {
 public:
  Scope(const Design* top, const std::string& pattern, bool hierarchical)
      : top_(top->GetNetlist()),
        pattern_(pattern),
        deep_(hierarchical || pattern.find('/') != std::string::npos),
        by_full_name_(!hierarchical && deep_) {}

  void Walk(const std::function<void(Netlist*)>& visit) const {
    if (deep_)
      ForEachNetlist(top_, visit);
    else
      visit(top_);
  }
  template <class T>
  bool Matches(const T& object) const {
    return by_full_name_ ? GlobMatch(pattern_, object.GetFullName(), true)
                         : GlobMatch(pattern_, object.Name());
  }

 private:
  Netlist* top_;
  const std::string& pattern_;
  bool deep_;
  bool by_full_name_;
};

}  // namespace

void FindCellNames(const Design* top, const std::string& pattern, bool hierarchical,
                   std::vector<std::string>& names) {
  Scope scope(top, pattern, hierarchical);
  scope.Walk([&](Netlist* netlist) {
    for (Cell& cell : netlist->Cells())
      if (scope.Matches(cell)) names.push_back(cell.GetFullName());
  });
}

void FindNetNames(const Design* top, const std::string& pattern, bool hierarchical,
                  std::vector<std::string>& names) {
  Scope scope(top, pattern, hierarchical);
  scope.Walk([&](Netlist* netlist) {
    for (Net& net : netlist->Nets())
      if (!netlist->IsTieNet(&net) && scope.Matches(net)) names.push_back(net.GetFullName());
  });
}

void FindPinNames(const Design* top, const std::string& pattern, bool hierarchical,
                  std::vector<std::string>& names) {
  size_t slash = pattern.rfind('/');
  if (slash == std::string::npos) return;
  std::string cell_pattern = pattern.substr(0, slash), pin_pattern = pattern.substr(slash + 1);
  Scope scope(top, cell_pattern, hierarchical);
  scope.Walk([&](Netlist* netlist) {
    for (Cell& cell : netlist->Cells()) {
      if (!scope.Matches(cell)) continue;
      for (uint32_t i = 0; i < cell.PinCount(); ++i)
        if (GlobMatch(pin_pattern, cell.GetPin(i)->Name()))
          names.push_back(cell.GetPin(i)->GetFullName());
    }
  });
}

void FindPortNames(const Design* top, const std::string& pattern, std::vector<std::string>& names) {
  for (Port* port : top->Ports()) {
    bool bus_match = port->GetBus() && GlobMatch(pattern, port->GetBus()->Name());
    if (bus_match || GlobMatch(pattern, port->Name())) names.push_back(port->Name());
  }
}

void FindDirectedPortNames(const Design* top, bool inputs, std::vector<std::string>& names) {
  for (Port* port : top->Ports())
    if (inputs ? port->IsInput() : port->IsOutput()) names.push_back(port->Name());
}

void FindLibNames(const Root* root, const std::string& pattern, std::vector<std::string>& names) {
  for (LibertyLib* lib : root->LibertyLibs())
    if (GlobMatch(pattern, lib->Name())) names.push_back(lib->Name());
}

void FindLibCellNames(const Root* root, const std::string& pattern,
                      std::vector<std::string>& names) {
  size_t slash = pattern.find('/');
  std::string lib_pattern = slash == std::string::npos ? "*" : pattern.substr(0, slash);
  std::string cell_pattern = slash == std::string::npos ? pattern : pattern.substr(slash + 1);
  for (LibertyLib* lib : root->LibertyLibs()) {
    if (!GlobMatch(lib_pattern, lib->Name())) continue;
    for (LibCell* cell : lib->GetLibCells())
      if (GlobMatch(cell_pattern, cell->Name())) names.push_back(lib->Name() + "/" + cell->Name());
  }
}

}  // namespace cdm
