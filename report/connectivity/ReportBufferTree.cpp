// report_buffer_tree: from a driver, forward through every buffer and
// inverter, one line per load, top-level port and further driver of the
// tree, depth first.
#include <ctime>
#include <iomanip>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "cmd/TclCmd.h"
#include "connectivity/WalkPath.h"
#include "format/ReportMgr.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cmd/Interrupt.h"
#include "hostapi/msg/Msg.h"

std::string GetTime() {
  std::time_t now = std::time(nullptr);
  std::ostringstream out;
  out << std::put_time(std::localtime(&now), "%a %b %e %T %Y");
  return out.str();
}

// A top-level port's pin: a pin without a cell.
bool IsPortTerminal(cdm::Pin const* pin) {
  return pin->GetCell() == nullptr;
}

// An input of a library cell that is neither buffer nor inverter: the tree
// ends there.
bool IsLoadTerminal(cdm::Pin const* pin) {
  const cdm::Cell* cell = pin->GetCell();
  if (!cell || pin->GetDirection() != cdm::kDirInput) return false;
  const cdm::LibCell* lib_cell = cell->GetRefLibCell();
  return lib_cell && !lib_cell->IsBuffer() && !lib_cell->IsInverter();
}

// An input of a buffer or inverter: the tree goes on through its cell.
bool IsDriver(cdm::Pin const* pin) {
  const cdm::Cell* cell = pin->GetCell();
  if (!cell || !cell->GetRef() || !cell->GetRef()->IsLibRef()) return false;
  if (pin->GetDirection() != cdm::kDirInput) return false;
  const cdm::LibCell* lib_cell = cell->GetRefLibCell();
  return lib_cell && (lib_cell->IsBuffer() || lib_cell->IsInverter());
}

namespace {

// The drivers the walk has gone through, from the root on.
WalkPath path;

// The reference a driver's line names: its cell's, or for a top-level
// port the current design, which the port belongs to.
const cdm::Reference* DriverReference(const cdm::Pin* pin) {
  if (const cdm::Cell* cell = pin->GetCell()) return cell->GetRef();
  return cdm::DbManager::GetCurrentDesign();
}

std::string NetText(const cdm::Pin* pin) {
  return " - Net: " + (pin->GetNet() ? pin->GetNet()->GetFullName() : std::string());
}

void PrintRootLine(const cdm::Pin* driver, const std::string& name, bool connections) {
  const cdm::Reference* ref = DriverReference(driver);
  std::string line = "Driver (level 0):" + name + "(" + (ref ? ref->Name() : std::string()) + ")";
  if (connections) line += NetText(driver);
  msg::Print_Result("%s", line.c_str());
}

// A net without a driver pin (undriven, or tied to a constant) has no tree.
void PrintNoDriver(const std::string& name, const cdm::Design* design) {
  msg::Print_Result("Can't find the driver of '%s' in design '%s'.", name.c_str(),
                    design->Name().c_str());
}

}  // namespace

// A driver met again on its own path closes a loop of buffers: its line is
// printed and the walk does not go round the loop again.
void PrintBufferTree(cdm::Pin* pin, bool has_depth, bool hierarchy, bool connections,
                     unsigned long depth, unsigned long level, cdm::HierarchyMode mode) {
  if (common::InterruptRequested()) return;
  const std::string indent(2 * level, ' ');
  const cdm::Reference* parent_ref = DriverReference(pin);
  const std::string parent = parent_ref ? parent_ref->GetRefText() : std::string();
  std::vector<cdm::Pin*> fanout;
  pin->GetFanoutPins(fanout, mode);
  for (cdm::Pin* p : fanout) {
    if (IsPortTerminal(p) && (!has_depth || !(depth < level - 1))) {
      msg::Print_Result("%s", (indent + "Port (level " + std::to_string(level - 1) +
                               "):" + p->GetFullName() + "(**net_link**)")
                                  .c_str());
      continue;
    }
    if (IsLoadTerminal(p) && (!has_depth || !(depth < level - 1))) {
      msg::Print_Result("%s", (indent + "Load (level " + std::to_string(level - 1) +
                               "):" + p->GetFullName() + "(" + parent + ")")
                                  .c_str());
      continue;
    }
    if (IsDriver(p) && (!has_depth || !(depth < level))) {
      cdm::Cell* cell = p->GetCell();
      cdm::LibPort* port = dynamic_cast<cdm::LibPort*>(p->GetPort());
      for (cdm::LibPort* out : cell->GetRefLibCell()->GetCellToPorts(port)) {
        cdm::Pin* q = cell->FindPin(out->Name());
        if (!q) continue;
        std::string line = indent + "Driver (level " + std::to_string(level) +
                           "):" + q->GetFullName() + "(" + cell->GetRef()->GetRefText() + ")";
        if (connections) line += NetText(q);
        msg::Print_Result("%s", line.c_str());
        WalkPath::Step step(path, q);
        if (step.Entered())
          PrintBufferTree(q, has_depth, hierarchy, connections, depth, level + 1, mode);
      }
    }
  }
}

int ReportBufferTreeCmd::exec() {
  if (!PreReport()) return 1;
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  msg::Print_Result("*******************************");
  msg::Print_Result("Report : buffer tree");
  msg::Print_Result("Design : %s", design->Name().c_str());
  msg::Print_Result("Version: ");
  msg::Print_Result("Date   : %s", GetTime().c_str());
  msg::Print_Result("\n*******************************\n");

  const std::optional<std::vector<std::string>> from = getFromOptional();
  const std::optional<std::vector<std::string>> nets = getNetOptional();
  const std::optional<int> depth_option = getDepthOptional();
  const bool has_depth = depth_option.has_value();
  // A negative depth turns into a huge bound, as does no depth at all.
  const unsigned long depth = static_cast<unsigned long>(static_cast<long>(getDepth()));
  const unsigned long bound = has_depth ? depth : static_cast<unsigned long>(-1L);
  const bool hierarchy = getHierarchy();
  const bool connections = getConnections();
  const cdm::HierarchyMode mode = hierarchy ? cdm::kHierFlat : cdm::kHierLevel;

  if (from) {
    for (const std::string& name : *from) {
      cdm::Pin* pin = cdm::DbManager::FindPin(name);
      if (!pin) {
        msg::Print_Result("Can't find object '%s' in design '%s'.", name.c_str(),
                          design->Name().c_str());
        continue;
      }
      cdm::Pin* driver = pin;
      std::string root_name = name;
      if (pin->GetDirection() != cdm::kDirOutput) {
        driver = pin->GetCurrentDriverPin();
        if (!driver) {
          PrintNoDriver(name, design);
          continue;
        }
        root_name = driver->GetFullName();
      }
      PrintRootLine(driver, root_name, connections);
      WalkPath::Step root(path, driver);
      PrintBufferTree(driver, has_depth, hierarchy, connections, bound, 1, mode);
      if (common::InterruptRequested()) return 1;  // Ctrl-C: stop between trees
    }
  } else if (nets) {
    for (const std::string& name : *nets) {
      cdm::Net* net = cdm::DbManager::FindNet(name);
      if (!net) {
        msg::Print_Result("Can't find object '%s' in design '%s'.", name.c_str(),
                          design->Name().c_str());
        continue;
      }
      cdm::Pin* driver = net->GetCurrentDriverPin();
      if (!driver) {
        PrintNoDriver(name, design);
        continue;
      }
      PrintRootLine(driver, driver->GetFullName(), connections);
      WalkPath::Step root(path, driver);
      PrintBufferTree(driver, has_depth, hierarchy, connections, bound, 1, mode);
      if (common::InterruptRequested()) return 1;  // Ctrl-C: stop between trees
    }
  }
  return 0;
}
