// report_net: the nets of the current design with their fan-out, fan-in,
// loads and resistance in one summary table, or with -connections the
// driver and load pins of each net; -transition_times adds the slews at
// the drivers.
#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "cmd/TclCmd.h"
#include "format/ReportMgr.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/DesignIterators.h"
#include "hostapi/cdm/LibRecords.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/cmd/Interrupt.h"
#include "hostapi/msg/Msg.h"
#include "hostapi/sta/Graph.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"
#include "hostapi/sta/Sta.h"
#include "hostapi/sta/TimerMgr.h"

namespace {

// What a pin is to the report: a port of the design or a cell pin, in or
// out. A pin without a cell stands for a port, also below the top.
std::string PinTypeText(const cdm::Pin* pin) {
  const bool output = pin->GetDirection() == cdm::kDirOutput;
  const cdm::Cell* cell = pin->GetCell();
  if (pin->IsTopPortPin() || !cell) return output ? "Output Port" : "Input Port";
  const std::string ref = cell->GetRef() ? cell->GetRef()->GetRefText() : cell->GetRefName();
  return (output ? "Output Pin (" : "Input Pin (") + ref + ")";
}

// The nets to report, by full name. A name given twice is one net.
std::map<std::string, cdm::Net*> SelectNets(cdm::Design* design,
                                            const std::vector<std::string>& names) {
  std::map<std::string, cdm::Net*> nets;
  if (!names.empty()) {
    for (const std::string& name : names) {
      if (cdm::Net* net = cdm::DbManager::FindNet(name)) nets[net->GetFullName()] = net;
    }
    return nets;
  }
  cdm::AllPinIterator pins(design, false, [](const cdm::Pin* pin) {
    return pin->IsNetDriver() && pin->GetNet() != nullptr;
  });
  while (pins.HasNext()) {
    cdm::Pin* pin = pins.Next();
    std::vector<cdm::Pin*> fanout;
    pin->GetFanoutPins(fanout, cdm::kHierFlat);
    if (pin->IsConst() && fanout.empty()) continue;
    nets[pin->GetNet()->GetFullName()] = pin->GetNet();
  }
  return nets;
}

void PrintBanner(ReportNetCmd& cmd) {
  msg::Print_Result("****************************************");
  msg::Print_Result("*Report : net");
  if (cmd.getNosplit()) msg::Print_Result("*         -nosplit");
  if (cmd.getNoflat()) msg::Print_Result("*         -noflat");
  if (cmd.getTransitionTimes()) msg::Print_Result("*         -transition_times");
  if (cmd.getOnlyPhysical()) msg::Print_Result("*         -only_physical");
  if (cmd.getVerbose()) msg::Print_Result("*         -verbose");
  if (cmd.getCellDegradation()) msg::Print_Result("*         -cell_degradation");
  if (cmd.getConnections()) msg::Print_Result("*         -connections");
  if (cmd.getPhysical()) msg::Print_Result("*         -physical");
  if (cmd.getThresholdOptional()) msg::Print_Result("*         -threshold");
  if (cmd.getMin()) msg::Print_Result("*         -min");
  if (cmd.getMaxToggleRate()) msg::Print_Result("*         -max_toggle_rate");
  if (cmd.getMaxCapacitance()) msg::Print_Result("*         -max_capacitance");
  if (std::optional<int> digits = cmd.getSignificantDigitsOptional())
    msg::Print_Result("*         -significant_digits %d", *digits);
  // The line stands a second time, on purpose.
  if (cmd.getMaxCapacitance()) msg::Print_Result("*         -max_capacitance");
  if (cmd.getScenarios()) msg::Print_Result("*         -scenarios");
  msg::Print_Result("*Design : ");
  msg::Print_Result("*Version: ");
  msg::Print_Result("*Date   : ");
  msg::Print_Result("****************************************\n");
}

// The wire-load lines; gives the library whose units and operating
// conditions the report uses (null when there is no library at all).
cdm::LibertyLib* PrintWireLoadHeader(cdm::Design* design, sta::sdc::SdcMgr* sdc,
                                     const cdm::MinMax* minmax) {
  const cdm::WireLoad* wlm = sdc->getWireLoadModel(minmax);
  cdm::LibertyLib* lib = nullptr;
  std::string condition = "unknown";
  if (!wlm) {
    lib = cdm::DbManager::GetDefaultLiberty();
    wlm = lib ? lib->GetDefaultWireLoad() : nullptr;
  } else if (!wlm->library) {
    lib = cdm::DbManager::GetDefaultLiberty();
  } else {
    lib = wlm->library;
    if (const cdm::OperatingConditions* conditions = lib->GetDefaultOperatingConditions())
      condition = conditions->name;
  }
  const std::string lib_name = lib ? lib->Name() : " ";
  const char* mode = cdm::wireloadModeString(sdc->getWireLoadMode());
  msg::Print_Result("Operating Conditions: %s   Library: %s", condition.c_str(), lib_name.c_str());
  msg::Print_Result("Wire Load Model Mode: %s", mode ? mode : "unknown");
  msg::Print_Result("Design        Wire Load Model            Library");
  msg::Print_Result("------------------------------------------------");
  msg::Print_Result("%s   %s    %s", design->Name().c_str(), wlm ? wlm->name.c_str() : "unknown",
                    lib_name.c_str());
  msg::Print_Result("Attributes:");
  msg::Print_Result("    d - dont_touch");
  msg::Print_Result("    c - annotated capacitance");
  return lib;
}

void AddColumns(ReportTable& table, const std::vector<const char*>& columns) {
  for (size_t i = 0; i < columns.size(); ++i)
    table.AddItem(columns[i], i == 0, "", ReportTable::kLeft, 0);
}

// A load of the flat walk: its type text and its two capacitances.
struct LoadEntry {
  const cdm::Pin* pin;
  std::string type;
  std::vector<float> caps;
};

}  // namespace

int ReportNetCmd::exec() {
  if (!PreReport()) return 1;
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  if (!design) return 1;
  TimerMgr* timer_mgr = TimerMgr::getInstance();
  timer_mgr->updateTiming(false, nullptr);
  const bool connections = getConnections();
  const bool verbose = getVerbose();
  if (verbose && !connections) return 1;

  const std::map<std::string, cdm::Net*> nets = SelectNets(design, getNetList());
  if (nets.empty()) return 0;

  const bool noflat = getNoflat();
  const bool use_min = getMin();
  const cdm::MinMax* minmax = use_min ? cdm::MinMax::min_ : cdm::MinMax::max_;
  const std::optional<int> digits_option = getSignificantDigitsOptional();
  const int digits = digits_option ? *digits_option : 4;
  // A negative threshold turns into a huge one and leaves every net out.
  const unsigned long threshold = static_cast<unsigned long>(static_cast<long>(getThreshold()));

  sta::Sta* timer = timer_mgr->getSta("");
  const sta::Graph* graph = timer ? timer->graph() : nullptr;
  PrintBanner(*this);
  sta::sdc::SdcMgr* sdc = sta::sdc::SdcMain::getOrCreateSdcMgr(design);
  cdm::LibertyLib* lib = PrintWireLoadHeader(design, sdc, minmax);
  const cdm::LibUnits units = lib ? lib->GetUnits() : cdm::LibUnits();
  const cdm::OperatingConditions* conditions = lib ? lib->GetDefaultOperatingConditions() : nullptr;

  ReportTable summary;
  AddColumns(summary, {"Net", "Fanout", "Fanin", "Load", "LoadUR", "LoadUF", "LoadLR", "LoadLF",
                       "Resist", "Pins", "Attr", "Logic Level"});
  int total_fanout = 0;
  int total_fanin = 0;
  int max_fanout = 0;
  int max_fanin = 0;

  for (const auto& [name, net] : nets) {
    if (common::InterruptRequested()) return 1;  // Ctrl-C: stop between nets
    std::vector<cdm::Pin*> drivers;
    std::vector<cdm::Pin*> loads;
    if (!noflat) {
      cdm::NetConnIter pins(net, false, cdm::func<cdm::Pin>);
      while (pins.HasNext()) {
        cdm::Pin* pin = pins.Next();
        (pin->IsNetDriver() ? drivers : loads).push_back(pin);
      }
    } else {
      net->GetFanoutPins(loads, cdm::kHierLevel);
      net->GetFaninPins(drivers, cdm::kHierLevel);
    }
    const int constant = drivers.empty() ? net->GetConstValue() : 2;
    const bool constant_net = drivers.empty() && (constant == 0 || constant == 1);

    if (threshold > loads.size()) continue;
    const int fanout = static_cast<int>(loads.size());
    const int fanin = constant_net ? 1 : static_cast<int>(drivers.size());
    max_fanout = std::max(max_fanout, fanout);
    max_fanin = std::max(max_fanin, fanin);
    total_fanout += fanout;
    total_fanin += fanin;
    summary.InsertValue("Net", name);
    summary.InsertValue("Fanout", fanout);
    summary.InsertValue("Fanin", fanin);
    summary.InsertValue("Pins", fanout + fanin);

    float rise = 0.0f;
    float fall = 0.0f;
    std::vector<LoadEntry> flat_loads;
    for (const cdm::Pin* pin : loads) {
      std::vector<float> caps;
      PinCap(pin, caps);
      rise += caps[0];
      fall += caps[1];
      if (!noflat) flat_loads.push_back({pin, PinTypeText(pin), caps});
    }

    ReportTable load_table;
    AddColumns(load_table, {"Load Pins", "Type", "Pin Cap"});
    // The load rows show the transition whose sum is larger (smaller with
    // -min); a tie shows rise.
    const bool show_fall = use_min ? rise > fall : fall > rise;
    for (const LoadEntry& entry : flat_loads) {
      load_table.InsertValue("Load Pins", entry.pin->GetFullName());
      load_table.InsertValue("Type", entry.type);
      load_table.InsertValue("Pin Cap",
                             units.capacitance.asString(entry.caps[show_fall ? 1 : 0], digits));
    }

    const float pinload = use_min ? std::min(rise, fall) : std::max(rise, fall);
    float wire = 0.0f;
    float res = 0.0f;
    net->NetCapAndRes(conditions, wire, res, cdm::MinMax::max_, cdm::kHierNetRC);
    float load = pinload + wire;
    rise += wire;
    fall += wire;
    cdm::Pin* driver = net->GetDriverPin();
    if (driver && driver->IsTopPortPin()) {
      const float ext = sdc->getPortExtWireCap(driver->GetPort(), cdm::RiseFall::rise_, minmax);
      load += ext;
      wire += ext;
      rise += ext;
      fall += ext;
    }
    summary.InsertValue("Resist", units.resistance.asString(res, digits));
    summary.InsertValue("Load", units.capacitance.asString(load, digits));
    summary.InsertValue("LoadUR", units.capacitance.asString(rise, digits));
    summary.InsertValue("LoadUF", units.capacitance.asString(fall, digits));
    summary.InsertValue("LoadLR", units.capacitance.asString(rise, digits));
    summary.InsertValue("LoadLF", units.capacitance.asString(fall, digits));
    if (graph && driver) {
      if (const sta::Vertex* vertex = graph->vertex(driver->GetVertexId()))
        summary.InsertValue("Logic Level", static_cast<int>(vertex->level()));
    }
    if (!connections) continue;

    if (verbose) {
      for (const cdm::Pin* pin : drivers) {
        std::vector<float> caps;
        PinCap(pin, caps);
        rise += caps[0];
        fall += caps[1];
      }
      const float lo = std::min(rise, fall);
      const float hi = std::max(rise, fall);
      const cdm::Unit& cap = units.capacitance;
      msg::Print_Result("\nnet '%s':", net->GetFullName().c_str());
      msg::Print_Result("    dont_touch:         unknown");
      msg::Print_Result("    pin capacitance:    min:%s    max:%s",
                        cap.asString(lo - wire, digits).c_str(),
                        cap.asString(hi - wire, digits).c_str());
      msg::Print_Result("    wire capacitance:   min:%s    max:%s",
                        cap.asString(wire, digits).c_str(), cap.asString(wire, digits).c_str());
      msg::Print_Result("    total capacitance:  min:%s    max:%s",
                        cap.asString(lo, digits).c_str(), cap.asString(hi, digits).c_str());
      msg::Print_Result("    wire resistance:    %s",
                        units.resistance.asString(res, digits).c_str());
      msg::Print_Result("    number of drivers:  %d", fanin);
      msg::Print_Result("    number of loads:    %d", fanout);
      msg::Print_Result("    number of pins:     %d", fanin + fanout);
    }

    // Driver and -noflat load rows show one transition: fall, rise with -min.
    const int edge = use_min ? 0 : 1;
    ReportTable driver_table;
    AddColumns(driver_table, {"Driver Pins", "Type", "Pin Cap"});
    if (drivers.empty()) {
      driver_table.InsertValue("Driver Pins", std::string(constant == 0   ? "*Logic0*"
                                                          : constant == 1 ? "*Logic1*"
                                                                          : "un-driver"));
    }
    for (const cdm::Pin* pin : drivers) {
      std::vector<float> caps;
      PinCap(pin, caps);
      driver_table.InsertValue("Driver Pins", pin->GetFullName());
      driver_table.InsertValue("Type", PinTypeText(pin));
      driver_table.InsertValue("Pin Cap", units.capacitance.asString(caps[edge], digits));
    }
    if (noflat) {
      for (const cdm::Pin* pin : loads) {
        std::vector<float> caps;
        PinCap(pin, caps);
        load_table.InsertValue("Load Pins", pin->GetFullName());
        load_table.InsertValue("Type", PinTypeText(pin));
        load_table.InsertValue("Pin Cap", units.capacitance.asString(caps[edge], digits));
      }
    }
    msg::Print_Result("\nConnections for net '%s':", net->GetFullName().c_str());
    driver_table.PrintTable(4, true);
    load_table.PrintTable(4, true);
    msg::InsertEmptyLine();
  }

  if (!connections) {
    const int count = static_cast<int>(nets.size());
    summary.InsertSeparator('-');
    summary.InsertValue("Net", "Total " + std::to_string(count) + " nets");
    summary.InsertValue("Fanout", total_fanout);
    summary.InsertValue("Fanin", total_fanin);
    summary.InsertValue("Net", std::string("Maximum"));
    summary.InsertValue("Fanout", max_fanout);
    summary.InsertValue("Fanin", max_fanin);
    summary.InsertValue("Net", std::string("Average"));
    const float average_fanout = static_cast<float>(static_cast<double>(total_fanout) / count);
    const float average_fanin = static_cast<float>(static_cast<double>(total_fanin) / count);
    summary.InsertValue("Fanout", units.scalar.asString(average_fanout, digits));
    summary.InsertValue("Fanin", units.scalar.asString(average_fanin, digits));
    summary.PrintTable(0, true);
  }

  if (getTransitionTimes()) {
    ReportTable transitions;
    transitions.title = "Transition Times";
    AddColumns(transitions, {"Net", "Rise", "Fall"});
    const sta::Graph* slew_graph = timer ? timer->ensureGraph() : nullptr;
    for (const auto& [name, net] : nets) {
      const cdm::Pin* driver = net->GetDriverPin();
      if (!driver || !slew_graph) continue;
      const sta::Vertex* vertex = slew_graph->vertex(driver->GetVertexId());
      if (!vertex) continue;
      transitions.InsertValue("Net", name);
      transitions.InsertValue(
          "Rise", units.time.asString(
                      slew_graph->slew(vertex, cdm::RiseFall::rise_, minmax->index()), digits));
      transitions.InsertValue(
          "Fall", units.time.asString(
                      slew_graph->slew(vertex, cdm::RiseFall::fall_, minmax->index()), digits));
    }
    transitions.InsertSeparator('-');
    transitions.PrintTable(4, true);
  }
  return 0;
}
