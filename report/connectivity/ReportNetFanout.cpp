// report_net_fanout: nets with their fan-out, attributes, capacitance and
// driver; with -tree the fan-out is counted through buffers and inverters
// and a depth column is added. With -verbose or -connections each row is
// followed by its driver pins (and with -connections its loads).
#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "cmd/TclCmd.h"
#include "connectivity/WalkPath.h"
#include "format/ReportMgr.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/DesignIterators.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibRecords.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cmd/Interrupt.h"
#include "hostapi/msg/Msg.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"
#include "hostapi/sta/TimerMgr.h"

namespace {

// Loads already counted in this run: through buffers a pin counts once,
// whichever net reaches it first. postExec empties it.
std::unordered_set<const cdm::Pin*> visit;

// The buffer inputs the walk through a tree has gone through: a loop of
// buffers ends where it comes round.
WalkPath path;

struct PinEntry {
  std::string name;
  std::string type;
  std::string net;
};

struct FanoutRow {
  std::string net;
  std::vector<PinEntry> drivers;
  std::vector<PinEntry> positive;
  std::vector<PinEntry> negative;
  int fanout = 0;
  int depth = 0;
  std::string attributes;
  std::string capacitance;
};

// The type of a kept pin, by its role on the net: a driver is an output pin
// or an input port, a load an input pin or an output port. A cell without
// a library cell gives no text.
std::string RoleTypeText(const cdm::Pin* pin, bool driver) {
  const cdm::Cell* cell = pin->GetCell();
  if (!cell) return driver ? "Input Port" : "Output Port";
  const cdm::LibCell* lib_cell = cell->GetRefLibCell();
  if (!lib_cell) return "";
  return (driver ? "Output Pin (" : "Input Pin (") + lib_cell->Name() + ")";
}

PinEntry KeepPin(const cdm::Pin* pin, bool driver, int& pin_width) {
  PinEntry entry{pin->GetFullName(), RoleTypeText(pin, driver),
                 pin->GetNet() ? pin->GetNet()->GetFullName() : std::string()};
  pin_width = std::max(pin_width, static_cast<int>(entry.name.size()) + 4);
  return entry;
}

std::string Pad(const std::string& text, int width) {
  std::string padded = text;
  if (static_cast<int>(padded.size()) < width) padded.append(width - padded.size(), ' ');
  return padded;
}

// The wire-load lines; gives the library of the model in force, else the
// default library (for the units).
cdm::LibertyLib* WriteWireLoadLines(std::ostringstream& out, const cdm::Design* design,
                                    sta::sdc::SdcMgr* sdc, const cdm::MinMax* minmax) {
  const cdm::WireLoad* model = sdc->getWireLoadModel(minmax);
  cdm::LibertyLib* lib = model ? model->library : nullptr;
  const cdm::OperatingConditions* conditions = lib ? lib->GetDefaultOperatingConditions() : nullptr;
  const std::string lib_name = lib ? lib->Name() : " ";
  const char* mode = cdm::wireloadModeString(sdc->getWireLoadMode());
  out << "Operating Conditions: " << (conditions ? conditions->name : "unknown")
      << "   Library: " << lib_name << "\n";
  out << "Wire Load Model Mode: " << (mode ? mode : "unknown") << "\n";
  out << "Design        Wire Load Model            Library\n";
  out << "------------------------------------------------\n";
  out << design->Name() << "   " << (model ? model->name : "unknown") << "    " << lib_name
      << "\n\n";
  return lib ? lib : cdm::DbManager::GetDefaultLiberty();
}

}  // namespace

// Every net of the design and below it that a pin drives, once per driving
// pin, with the net's constant value.
void FindAllNets(std::vector<std::pair<cdm::Net*, int>>& nets) {
  cdm::AllPinIterator pins(cdm::DbManager::GetCurrentDesign(), true, [](const cdm::Pin* pin) {
    return pin->IsNetDriver() && pin->GetNet() != nullptr;
  });
  while (pins.HasNext()) {
    cdm::Net* net = pins.Next()->GetNet();
    nets.emplace_back(net, net->GetConstValue());
  }
}

// Sorts the loads behind `pin` into those reached through an even (first)
// and an odd (second) number of inverters. Without `through` the pin is a
// load itself. `depth` counts the buffers passed; it comes back as the
// deepest stage reached below `pin`.
void LoadPinsThroughBufTree(std::pair<std::vector<cdm::Pin*>, std::vector<cdm::Pin*>>& lists,
                            int& depth, cdm::Pin const* pin, bool through, int max_depth,
                            bool positive) {
  if (visit.count(pin)) return;
  if (!through) {
    lists.first.push_back(const_cast<cdm::Pin*>(pin));
    return;
  }
  const cdm::LibPort* port = dynamic_cast<const cdm::LibPort*>(pin->GetPort());
  const cdm::LibCell* lib_cell = port ? port->GetLibCell() : nullptr;
  const cdm::Cell* cell = pin->GetCell();
  if (lib_cell && cell && max_depth != 0 && (lib_cell->IsBuffer() || lib_cell->IsInverter())) {
    WalkPath::Step step(path, pin);
    if (!step.Entered()) return;
    const cdm::Pin* output = nullptr;
    std::unique_ptr<cdm::Iterator<cdm::Pin>> pins(cell->PinIter());
    while (!output && pins->HasNext()) {
      const cdm::Pin* candidate = pins->Next();
      if (candidate->IsNetDriver()) output = candidate;
    }
    if (!output) return;
    std::vector<cdm::Pin*> fanout;
    output->GetFanoutPins(fanout, cdm::kHierFlat);
    const int saved = depth;
    depth = saved + 1;
    if (fanout.empty()) {
      depth = 0;
      return;
    }
    int deepest = 0;
    const bool next = lib_cell->IsBuffer() ? positive : !positive;
    for (const cdm::Pin* q : fanout) {
      int d = depth;
      LoadPinsThroughBufTree(lists, d, q, true, max_depth - 1, next);
      deepest = std::max(deepest, d);
    }
    depth = deepest;
    return;
  }
  // A leaf. With -tree a load right on the net, no buffer between, is not
  // counted.
  if (depth == 0) return;
  (positive ? lists.first : lists.second).push_back(const_cast<cdm::Pin*>(pin));
  visit.insert(pin);
}

int ReportNetFanoutCmd::postExec() {
  visit.clear();
  return 0;
}

int ReportNetFanoutCmd::exec() {
  if (!PreReport()) return 1;
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  if (!design) return 1;
  const bool high_fanout = getHighFanout();
  const std::optional<int> threshold = getThresholdOptional();
  const std::optional<int> bound = getBoundOptional();
  const bool tree = getTree();
  const std::vector<std::string> net_list = getNetList();
  const int depth_option = getDepth();
  if (high_fanout && threshold) {
    msg::Print_Result("This option -high_fanout is mutually exclusive with the -threshold option");
    return 1;
  }
  if (tree && !net_list.empty()) {
    msg::Print_Result("This option -tree is mutually exclusive with the net_list argument");
    return 1;
  }
  if (depth_option != 0 && !tree) {
    msg::Print_Result("-depth can only be used with the -tree option\n");
    return 1;
  }
  if (threshold && bound && *bound < *threshold) return 1;

  const bool verbose = getVerbose();
  const bool connections = getConnections();
  const bool use_min = getMin();
  const cdm::MinMax* minmax = use_min ? cdm::MinMax::min_ : cdm::MinMax::max_;
  std::ostringstream out;
  out << "****************************************\n"
      << "Report : net fanout\n";
  if (getNosplit()) out << "        -nosplit\n";
  if (high_fanout) out << "        -high_fanout\n";
  if (threshold) out << "        -threshold " << *threshold << "\n";
  if (bound) out << "        -bound " << *bound << "\n";
  if (verbose) out << "        -verbose\n";
  if (connections) out << "        -connections\n";
  if (getPhysical()) out << "        -physical\n";
  if (use_min) out << "        -min\n";
  if (tree) out << "        -tree\n";
  if (std::optional<int> depth = getDepthOptional()) out << "        -depth " << *depth << "\n";

  TimerMgr::getInstance()->getSta("");
  std::vector<std::pair<cdm::Net*, int>> nets;
  if (!net_list.empty()) {
    for (const std::string& name : net_list) {
      if (cdm::Net* net = cdm::DbManager::FindNet(name))
        nets.emplace_back(net, net->GetConstValue());
    }
  } else {
    FindAllNets(nets);
  }

  out << "Design : " << design->Name() << "\n"
      << "Version: \n"
      << "Date   : \n"
      << "****************************************\n";
  sta::sdc::SdcMgr* sdc = sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr);
  cdm::LibertyLib* lib = WriteWireLoadLines(out, design, sdc, minmax);
  const cdm::LibUnits units = lib ? lib->GetUnits() : cdm::LibUnits();
  const cdm::OperatingConditions* conditions = lib ? lib->GetDefaultOperatingConditions() : nullptr;
  out << "Attributes:\n"
      << "   dr - drc disabled\n"
      << "    c - annotated capacitance\n"
      << "    d - dont_touch\n"
      << "    i - ideal_net\n"
      << "    I - ideal_network\n"
      << "    p - includes pin load\n"
      << "    r - annotated resistance\n"
      << "    h - high fanout\n\n";
  msg::Print_Result("%s", out.str().c_str());
  out.str("");

  const int max_depth = depth_option != 0 ? depth_option : 100;
  const bool keep_loads = verbose || connections;
  std::vector<FanoutRow> rows;
  int net_width = 4;
  int pin_width = 18;
  for (const auto& [net, constant] : nets) {
    if (common::InterruptRequested()) return 1;  // Ctrl-C: stop between nets
    std::vector<cdm::Pin*> net_fanout;
    net->GetFanoutPins(net_fanout, cdm::kHierFlat);
    if (net_fanout.empty()) continue;
    std::vector<cdm::Pin*> drivers;
    std::vector<cdm::Pin*> loads;
    cdm::NetConnIter pins(net, false, cdm::func<cdm::Pin>);
    while (pins.HasNext()) {
      cdm::Pin* pin = pins.Next();
      if (pin->IsHierarchicalPin() && !tree) continue;
      (pin->IsNetDriver() ? drivers : loads).push_back(pin);
    }

    float rise = 0.0f;
    float fall = 0.0f;
    int net_depth = 0;
    std::pair<std::vector<cdm::Pin*>, std::vector<cdm::Pin*>> lists;
    for (const cdm::Pin* pin : loads) {
      std::vector<float> caps;
      PinCap(pin, caps);
      rise += caps[0];
      fall += caps[1];
      int d = 0;
      LoadPinsThroughBufTree(lists, d, pin, tree, max_depth, true);
      net_depth = std::max(net_depth, d);
    }
    const float pick = use_min ? std::min(rise, fall) : std::max(rise, fall);

    const int fanout = static_cast<int>(lists.first.size() + lists.second.size());
    if (fanout == 0 || (high_fanout && fanout < 500) || (threshold && fanout < *threshold) ||
        (bound && fanout > *bound))
      continue;

    const cdm::Pin* driver = net->GetDriverPin();
    const cdm::Net* wire_net = driver ? driver->GetBackwardConn() : net;
    float wire = 0.0f;
    float res = 0.0f;
    wire_net->NetCapAndRes(conditions, wire, res, cdm::MinMax::max_, cdm::kHierNetRC);

    FanoutRow row;
    row.net = net->GetFullName();
    net_width = std::max(net_width, static_cast<int>(row.net.size()) + 4);
    row.fanout = fanout;
    row.depth = net_depth;
    row.attributes = fanout > 499 ? "h " : "";
    row.capacitance = units.capacitance.asString(pick + wire, 2);
    if (drivers.empty()) {
      std::string name = constant == 0   ? row.net + "/*LOGIC_0*"
                         : constant == 1 ? row.net + "/*LOGIC_1*"
                                         : std::string("un-driver");
      row.drivers.push_back({name, " ", ""});
    } else {
      for (const cdm::Pin* pin : drivers) {
        row.drivers.push_back(KeepPin(pin, true, pin_width));
        if (tree && net_depth == 0) break;
      }
    }
    if (keep_loads) {
      for (const cdm::Pin* pin : lists.first)
        row.positive.push_back(KeepPin(pin, false, pin_width));
      for (const cdm::Pin* pin : lists.second)
        row.negative.push_back(KeepPin(pin, false, pin_width));
    }
    rows.push_back(std::move(row));
  }

  // The columns after the first are fixed. The format has no line end of
  // its own: the rule ends the heading's line, and every row ends its line
  // (the pin blocks follow right below it).
  auto format_row = [&](const std::string& net, const std::string& fanout, const std::string& depth,
                        const std::string& attributes, const std::string& capacitance,
                        const std::string& driver) {
    std::string line = Pad(net, net_width) + Pad(fanout, 10);
    if (tree) line += Pad(depth, 9);
    return line + Pad(attributes, 16) + Pad(capacitance, 16) + Pad(driver, 16);
  };
  auto format_pin = [&](const PinEntry& entry) {
    return "    " + Pad(entry.name, pin_width) + Pad(entry.type, 24) + entry.net + "\n";
  };
  const PinEntry rule{"------------", "----------------", "--------"};
  for (size_t i = 0; i < rows.size(); ++i) {
    const FanoutRow& row = rows[i];
    std::string driver_text;
    if (row.drivers.size() == 1) driver_text = row.drivers[0].name;
    if (row.drivers.size() > 1) driver_text = "multi-driver";
    if (i == 0 || keep_loads) {
      out << format_row("Net", "Fanout", "Depth", "Attributes", "Capacitance", "Driver");
      out << "\n" << std::string(94, '-') << "\n";
    }
    out << format_row(row.net, std::to_string(row.fanout), std::to_string(row.depth),
                      row.attributes, row.capacitance, driver_text)
        << "\n";
    if (!keep_loads) continue;
    out << format_pin({"Driver Pins", "Type", "Net"}) << format_pin(rule);
    for (const PinEntry& entry : row.drivers) out << format_pin(entry);
    out << "\n";
    if (!connections) continue;
    if (!row.positive.empty()) {
      out << format_pin({"Positive Loads", "Type", "Net"}) << format_pin(rule);
      for (const PinEntry& entry : row.positive) out << format_pin(entry);
    }
    if (!row.negative.empty()) {
      out << format_pin({"Negative Loads", "Type", "Net"}) << format_pin(rule);
      for (const PinEntry& entry : row.negative) out << format_pin(entry);
    }
    out << "\n";
  }
  out << "-------------------------\n"
      << "Total  " << rows.size() << "  nets\n";
  msg::Print_Result("%s", out.str().c_str());
  return 0;
}
