#include "sdc/SdcWriter.h"

#include <tcl.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>

#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Port.h"

namespace sta::sdc {
namespace {

using K = query::ObjectKind;

const cdm::RiseFall* const kEdges[] = {cdm::RiseFall::rise_, cdm::RiseFall::fall_};
const cdm::MinMax* const kMinMax[] = {cdm::MinMax::min_, cdm::MinMax::max_};

std::string EdgesFlag(const cdm::RiseFallBoth* edges, const char* rise, const char* fall) {
  if (edges == cdm::RiseFallBoth::rise_) return std::string(" ") + rise;
  if (edges == cdm::RiseFallBoth::fall_) return std::string(" ") + fall;
  return "";
}

// The flag for a pair of optional values that may be equal: none when both
// are set and equal.
template <class Emit>
void WritePair(const std::optional<float> values[2], const char* min_flag, const char* max_flag,
               Emit emit) {
  if (values[0] && values[1] && *values[0] == *values[1]) {
    emit("", *values[1]);
    return;
  }
  if (values[0]) emit(std::string(" ") + min_flag, *values[0]);
  if (values[1]) emit(std::string(" ") + max_flag, *values[1]);
}

}  // namespace

std::string SdcWriter::Value(float si, double scale) {
  char text[64];
  int digits = 1;
  for (; digits <= 17; ++digits) {
    std::snprintf(text, sizeof text, "%.*g", digits, si / scale);
    if (static_cast<float>(std::strtod(text, nullptr) * scale) == si) break;
  }
  // Large numbers in full ("5000", not "5e+03").
  if (const char* exponent = std::strstr(text, "e+")) {
    const int power = std::atoi(exponent + 2);
    if (power < 17)
      std::snprintf(text, sizeof text, "%.*g", std::max(digits, power + 1), si / scale);
  }
  return text;
}

std::string SdcWriter::Time(float si) const {
  return Value(si, store_.Units().Scale(SdcUnits::kTime));
}
std::string SdcWriter::Cap(float si) const {
  return Value(si, store_.Units().Scale(SdcUnits::kCapacitance));
}
std::string SdcWriter::Res(float si) const {
  return Value(si, store_.Units().Scale(SdcUnits::kResistance));
}

std::string SdcWriter::Quote(const std::string& text) {
  const char* argv[] = {text.c_str()};
  char* merged = Tcl_Merge(1, argv);
  std::string quoted = merged;
  Tcl_Free(merged);
  // A single plain word reads the same in braces; braces keep brackets literal.
  if (!quoted.empty() && quoted.front() != '{' && quoted.find('\\') == std::string::npos)
    quoted = "{" + quoted + "}";
  return quoted;
}

std::string SdcWriter::Pattern(const std::string& name) {
  int count = 0;
  const char** elements = nullptr;
  bool alone = false;
  if (Tcl_SplitList(nullptr, name.c_str(), &count, &elements) == TCL_OK) {
    alone = count == 1 && name == elements[0];
    Tcl_Free(reinterpret_cast<char*>(elements));
  }
  if (alone) return Quote(name);
  const char* argv[] = {name.c_str()};
  char* merged = Tcl_Merge(1, argv);
  const std::string element = merged;
  Tcl_Free(merged);
  return Quote(element);
}

std::string SdcWriter::QueryCommand(query::ObjectKind kind) {
  switch (kind) {
    case K::kPort:
      return "get_ports";
    case K::kPin:
      return "get_pins";
    case K::kNet:
      return "get_nets";
    case K::kCell:
      return "get_cells";
    case K::kClock:
      return "get_clocks";
    case K::kLibrary:
      return "get_libs";
    case K::kLibCell:
      return "get_lib_cells";
    case K::kLibPin:
      return "get_lib_pins";
    case K::kDesign:
      return "current_design";
  }
  return "";
}

std::string SdcWriter::Object(const query::ObjectRef& ref) {
  return Query(ref.kind, {query::FullName(ref)});
}

std::string SdcWriter::Query(query::ObjectKind kind, const std::vector<std::string>& names) {
  if (kind == K::kDesign) return "[current_design]";
  // No names: an empty list, as a query without patterns would get every
  // object of the kind.
  if (names.empty()) return "{}";
  if (names.size() == 1) return "[" + QueryCommand(kind) + " " + Pattern(names.front()) + "]";
  std::vector<const char*> argv;
  for (const std::string& name : names) argv.push_back(name.c_str());
  char* merged = Tcl_Merge(static_cast<int>(argv.size()), argv.data());
  std::string list = merged;
  Tcl_Free(merged);
  return "[" + QueryCommand(kind) + " " + Quote(list) + "]";
}

std::string SdcWriter::PinObject(const cdm::Pin* pin) {
  if (pin->IsTopPortPin() && pin->GetPort())
    return "[get_ports " + Pattern(pin->GetPort()->Name()) + "]";
  return "[get_pins " + Pattern(pin->GetFullName()) + "]";
}

template <class Print>
void SdcWriter::WriteSlots(const cdm::RiseFallMinMax& values, const std::string& head,
                           const std::string& tail, Print print, const char* min_flag,
                           const char* max_flag) {
  bool done[2][2] = {{false, false}, {false, false}};
  for (int e = 0; e < 2; ++e) {
    for (int m = 0; m < 2; ++m) {
      if (done[e][m] || !values.hasValue(kEdges[e], kMinMax[m])) continue;
      const float value = values.value(kEdges[e], kMinMax[m]);
      bool same[2][2];
      for (int f = 0; f < 2; ++f)
        for (int n = 0; n < 2; ++n)
          same[f][n] = !done[f][n] && values.hasValue(kEdges[f], kMinMax[n]) &&
                       values.value(kEdges[f], kMinMax[n]) == value;
      // The largest box of slots with this value that includes (e, m).
      const bool both_edges = same[1 - e][m];
      const bool both_mm = same[e][1 - m];
      std::string flags;
      if (both_edges && both_mm && same[1 - e][1 - m]) {
        done[0][0] = done[0][1] = done[1][0] = done[1][1] = true;
      } else if (both_edges && !both_mm) {
        flags = std::string(" ") + (m == 0 ? min_flag : max_flag);
        done[0][m] = done[1][m] = true;
      } else if (both_mm) {
        flags = e == 0 ? " -rise" : " -fall";
        done[e][0] = done[e][1] = true;
      } else {
        flags = std::string(e == 0 ? " -rise" : " -fall") + " " + (m == 0 ? min_flag : max_flag);
        done[e][m] = true;
      }
      const std::string printed = print(value);
      out_ << head << flags << (printed.empty() ? "" : " ") << printed << tail << "\n";
    }
  }
}

void SdcWriter::Write() {
  cdm::Design* design = store_.GetDesign();
  if (!design) return;
  out_ << "# Constraints of design " << design->Name() << ", as write_sdc gives them\n";
  WriteUnitsAndDesign();
  WriteClocks();
  WriteClockAttributes();
  WriteDelays();
  WritePorts();
  WritePins();
  WriteNetsAndCells();
  WriteExceptions();
  if (store_.HierarchySeparator() != '/')
    out_ << "set_hierarchy_separator " << store_.HierarchySeparator() << "\n";
}

void SdcWriter::WriteUnitsAndDesign() {
  const SdcUnits& units = store_.Units();
  if (units.AnySet()) {
    out_ << "set_units";
    for (int q = 0; q < SdcUnits::kQuantityCount; ++q) {
      const auto quantity = static_cast<SdcUnits::Quantity>(q);
      if (!units.UserText(quantity).empty())
        out_ << " -" << SdcUnits::OptionName(quantity) << " " << units.UserText(quantity);
    }
    out_ << "\n";
  }
  const DesignConstraints& design = store_.DesignRef();
  const auto* const* conditions = design.operating_conditions;
  if (conditions[0] && conditions[0] == conditions[1]) {
    out_ << "set_operating_conditions -library " << Quote(design.operating_library[1]->Name())
         << " " << Quote(conditions[1]->name) << "\n";
  } else if (conditions[0] || conditions[1]) {
    out_ << "set_operating_conditions";
    if (conditions[1])
      out_ << " -max " << Quote(conditions[1]->name) << " -max_library "
           << Quote(design.operating_library[1]->Name());
    if (conditions[0])
      out_ << " -min " << Quote(conditions[0]->name) << " -min_library "
           << Quote(design.operating_library[0]->Name());
    out_ << "\n";
  }
  if (design.wire_load_mode)
    out_ << "set_wire_load_mode " << cdm::wireloadModeString(*design.wire_load_mode) << "\n";
  auto model = [&](const cdm::WireLoad* const models[2], const std::string& objects) {
    auto line = [&](const char* flag, const cdm::WireLoad* wire_load) {
      out_ << "set_wire_load_model -name " << Quote(wire_load->name);
      if (wire_load->library) out_ << " -library " << Quote(wire_load->library->Name());
      out_ << flag << objects << "\n";
    };
    if (models[0] && models[0] == models[1]) {
      line("", models[0]);
      return;
    }
    if (models[0]) line(" -min", models[0]);
    if (models[1]) line(" -max", models[1]);
  };
  model(design.wire_load, "");
  const std::string* groups = design.selection_group;
  for (int m = 0; m < 2; ++m) {
    if (groups[m].empty()) continue;
    const bool both = m == 0 && groups[0] == groups[1] &&
                      design.selection_library[0] == design.selection_library[1];
    out_ << "set_wire_load_selection_group";
    if (design.selection_library[m])
      out_ << " -library " << Quote(design.selection_library[m]->Name());
    if (!both) out_ << (m == 0 ? " -min" : " -max");
    out_ << " " << Quote(groups[m]) << "\n";
    if (both) break;
  }
  if (design.max_area) out_ << "set_max_area " << Value(*design.max_area, 1.0) << "\n";
  if (design.max_transition)
    out_ << "set_max_transition " << Time(*design.max_transition) << " [current_design]\n";
  if (design.max_capacitance)
    out_ << "set_max_capacitance " << Cap(*design.max_capacitance) << " [current_design]\n";
  if (design.min_capacitance)
    out_ << "set_min_capacitance " << Cap(*design.min_capacitance) << " [current_design]\n";
  if (design.max_fanout)
    out_ << "set_max_fanout " << Value(*design.max_fanout, 1.0) << " [current_design]\n";
}

void SdcWriter::WriteClocks() {
  for (const Clock* clock : store_.Clocks()) WriteClock(clock);
}

bool SdcWriter::SharesSource(const Clock* clock) const {
  for (const Clock* other : store_.Clocks()) {
    if (other == clock) continue;
    for (const cdm::Pin* pin : clock->getSources())
      if (std::find(other->getSources().begin(), other->getSources().end(), pin) !=
          other->getSources().end())
        return true;
  }
  return false;
}

void SdcWriter::WriteClock(const Clock* clock) {
  std::string sources;
  for (const cdm::Pin* pin : clock->getSources()) sources += " " + PinObject(pin);
  if (!clock->isGenerated()) {
    out_ << "create_clock -name " << Quote(clock->Name()) << " -period " << Time(clock->getPeriod())
         << " -waveform {";
    for (size_t i = 0; i < clock->getWaveform().size(); ++i)
      out_ << (i ? " " : "") << Time(clock->getWaveform()[i]);
    out_ << "}";
  } else {
    out_ << "create_generated_clock -name " << Quote(clock->Name());
    if (clock->getGeneratedSource()) out_ << " -source " << PinObject(clock->getGeneratedSource());
    if (clock->getMasterClock())
      out_ << " -master_clock [get_clocks " << Pattern(clock->getMasterClock()->Name()) << "]";
    if (!clock->getEdges().empty()) {
      out_ << " -edges {";
      for (size_t i = 0; i < clock->getEdges().size(); ++i)
        out_ << (i ? " " : "") << clock->getEdges()[i];
      out_ << "}";
      if (!clock->getEdgeShifts().empty()) {
        out_ << " -edge_shift {";
        for (size_t i = 0; i < clock->getEdgeShifts().size(); ++i)
          out_ << (i ? " " : "") << Time(clock->getEdgeShifts()[i]);
        out_ << "}";
      }
    } else {
      if (clock->getDivideBy() != 1) out_ << " -divide_by " << clock->getDivideBy();
      if (clock->getMultiplyBy() != 1) out_ << " -multiply_by " << clock->getMultiplyBy();
      if (clock->getDutyCycle() > 0.0f)
        out_ << " -duty_cycle " << Value(clock->getDutyCycle(), 1.0);
    }
    if (clock->isInverted()) out_ << " -invert";
    if (clock->isCombinational()) out_ << " -combinational";
  }
  // A clock that shares a source with another is written with -add, also
  // the first one: read on top of the same constraints, a clock without it
  // would take the source from the other and remove that one.
  if (clock->isAdded() || SharesSource(clock)) out_ << " -add";
  if (!clock->getComment().empty()) out_ << " -comment " << Quote(clock->getComment());
  out_ << sources << "\n";
}

void SdcWriter::WriteClockAttributes() {
  for (const Clock* clock : store_.Clocks()) {
    const std::string object = " [get_clocks " + Pattern(clock->Name()) + "]";
    if (clock->isPropagated()) out_ << "set_propagated_clock" << object << "\n";
    std::optional<float> uncertainty[2] = {clock->getUncertainty(cdm::MinMax::min_),
                                           clock->getUncertainty(cdm::MinMax::max_)};
    WritePair(uncertainty, "-hold", "-setup", [&](const std::string& flag, float value) {
      out_ << "set_clock_uncertainty" << flag << " " << Time(value) << object << "\n";
    });
    auto time = [&](float value) { return Time(value); };
    WriteSlots(clock->getSourceLatency(), "set_clock_latency -source", object, time);
    WriteSlots(clock->getNetworkLatency(), "set_clock_latency", object, time);
    WriteSlots(clock->getTransition(), "set_clock_transition", object, time);
  }
  for (const InterClockUncertainty& entry : store_.InterClockUncertainties()) {
    const std::string from = entry.from_edges == cdm::RiseFallBoth::rise_   ? "-rise_from"
                             : entry.from_edges == cdm::RiseFallBoth::fall_ ? "-fall_from"
                                                                            : "-from";
    const std::string to = entry.to_edges == cdm::RiseFallBoth::rise_   ? "-rise_to"
                           : entry.to_edges == cdm::RiseFallBoth::fall_ ? "-fall_to"
                                                                        : "-to";
    WritePair(entry.value, "-hold", "-setup", [&](const std::string& flag, float value) {
      out_ << "set_clock_uncertainty" << flag << " " << from << " [get_clocks "
           << Pattern(entry.from->Name()) << "] " << to << " [get_clocks "
           << Pattern(entry.to->Name()) << "] " << Time(value) << "\n";
    });
  }
  for (const ClockGroups& groups : store_.ClockGroupList()) {
    out_ << "set_clock_groups -name " << Quote(groups.name)
         << (groups.kind == ClockGroups::Kind::kLogicallyExclusive    ? " -logically_exclusive"
             : groups.kind == ClockGroups::Kind::kPhysicallyExclusive ? " -physically_exclusive"
                                                                      : " -asynchronous");
    if (groups.allow_paths) out_ << " -allow_paths";
    for (const auto& group : groups.groups) {
      std::vector<std::string> names;
      for (const Clock* clock : group) names.push_back(clock->Name());
      out_ << " -group " << Query(K::kClock, names);
    }
    if (!groups.comment.empty()) out_ << " -comment " << Quote(groups.comment);
    out_ << "\n";
  }
}

namespace {

// Pins in the order of the design's ports, then cell pins by name.
std::vector<std::pair<cdm::Pin*, PinConstraints*>> OrderedPins(SdcStore& store,
                                                               const cdm::Design* design) {
  std::vector<std::pair<cdm::Pin*, PinConstraints*>> pins = store.PinRecords();
  std::map<const cdm::Pin*, size_t> port_order;
  for (size_t i = 0; i < design->Ports().size(); ++i)
    if (cdm::Pin* pin = design->FindPin(design->Ports()[i]->Name())) port_order[pin] = i;
  std::sort(pins.begin(), pins.end(), [&](const auto& a, const auto& b) {
    auto pa = port_order.find(a.first), pb = port_order.find(b.first);
    const bool a_port = pa != port_order.end(), b_port = pb != port_order.end();
    if (a_port != b_port) return a_port;
    if (a_port) return pa->second < pb->second;
    return a.second->name < b.second->name;
  });
  return pins;
}

}  // namespace

void SdcWriter::WriteDelays() {
  cdm::Design* design = store_.GetDesign();
  for (auto& [pin, record] : OrderedPins(store_, design)) {
    const std::string object = PinObject(pin);
    auto write = [&](const char* command, const auto& delays) {
      for (const PortDelay* delay : delays) {
        std::string head = command;
        std::string tail;
        if (delay->getClock()) {
          tail += " -clock [get_clocks " + Pattern(delay->getClock()->Name()) + "]";
          if (delay->getClockEdge()->getRiseFall() == cdm::RiseFall::fall_) tail += " -clock_fall";
        }
        if (delay->getRefPin()) tail += " -reference_pin " + PinObject(delay->getRefPin());
        if (delay->getNetworkLatencyIncluded()) tail += " -network_latency_included";
        if (delay->getSourceLatencyIncluded()) tail += " -source_latency_included";
        tail += " -add_delay " + object;
        WriteSlots(delay->getDelays(), head, tail, [&](float value) { return Time(value); });
      }
    };
    write("set_input_delay", record->input_delays);
    write("set_output_delay", record->output_delays);
  }
}

void SdcWriter::WritePorts() {
  cdm::Design* design = store_.GetDesign();
  for (cdm::Port* port : design->Ports()) {
    const PortConstraints* record = store_.FindPort(port);
    if (!record) continue;
    const std::string object = " [get_ports " + Pattern(port->Name()) + "]";
    auto cap = [&](float value) { return Cap(value); };
    if (const PortExtLoad* load = record->load.get()) {
      WriteSlots(load->getPinLoads(), "set_load -pin_load", object, cap);
      WriteSlots(load->getWireLoads(), "set_load -wire_load", object, cap);
      std::optional<float> fanout[2] = {load->getFanout(cdm::MinMax::min_),
                                        load->getFanout(cdm::MinMax::max_)};
      WritePair(fanout, "-min", "-max", [&](const std::string& flag, float value) {
        out_ << "set_port_fanout_number" << flag << " " << Value(value, 1.0) << object << "\n";
      });
    }
    if (record->fanout_load)
      out_ << "set_fanout_load " << Value(*record->fanout_load, 1.0) << object << "\n";
    if (const InputDrive* drive = record->drive.get()) {
      // One command per driving cell object, over the slots it covers.
      std::vector<const DriveCell*> written;
      for (const cdm::RiseFall* rf : kEdges) {
        for (const cdm::MinMax* mm : kMinMax) {
          const DriveCell* cell = drive->getDriveCell(rf, mm);
          if (!cell || std::find(written.begin(), written.end(), cell) != written.end()) continue;
          written.push_back(cell);
          cdm::RiseFallMinMax slots;
          for (const cdm::RiseFall* e : kEdges)
            for (const cdm::MinMax* m : kMinMax)
              if (drive->getDriveCell(e, m) == cell) slots.setValue(e, m, 1.0f);
          std::string head = "set_driving_cell -lib_cell " + Quote(cell->getLibCell()->Name());
          if (cell->getLibrary()) head += " -library " + Quote(cell->getLibrary()->Name());
          if (cell->getToPort()) head += " -pin " + Quote(cell->getToPort()->Name());
          if (cell->getFromPort()) head += " -from_pin " + Quote(cell->getFromPort()->Name());
          if (cell->getMultiplyBy() != 1.0f)
            head += " -multiply_by " + Value(cell->getMultiplyBy(), 1.0);
          if (cell->getDontScale()) head += " -dont_scale";
          if (cell->getNoDesignRule()) head += " -no_design_rule";
          if (auto t = cell->getInputTransition(cdm::RiseFall::rise_))
            head += " -input_transition_rise " + Time(*t);
          if (auto t = cell->getInputTransition(cdm::RiseFall::fall_))
            head += " -input_transition_fall " + Time(*t);
          WriteSlots(slots, head, object, [](float) { return std::string(); });
        }
      }
      WriteSlots(drive->getDriveResistances(), "set_drive", object,
                 [&](float value) { return Res(value); });
      WriteSlots(drive->getSlews(), "set_input_transition", object,
                 [&](float value) { return Time(value); });
    }
    auto wire_model = [&](const char* flag, const cdm::WireLoad* wire_load) {
      out_ << "set_wire_load_model -name " << Quote(wire_load->name);
      if (wire_load->library) out_ << " -library " << Quote(wire_load->library->Name());
      out_ << flag << object << "\n";
    };
    if (record->wire_load[0] && record->wire_load[0] == record->wire_load[1]) {
      wire_model("", record->wire_load[0]);
    } else {
      if (record->wire_load[0]) wire_model(" -min", record->wire_load[0]);
      if (record->wire_load[1]) wire_model(" -max", record->wire_load[1]);
    }
    if (record->max_transition)
      out_ << "set_max_transition " << Time(*record->max_transition) << object << "\n";
    if (record->max_capacitance)
      out_ << "set_max_capacitance " << Cap(*record->max_capacitance) << object << "\n";
    if (record->min_capacitance)
      out_ << "set_min_capacitance " << Cap(*record->min_capacitance) << object << "\n";
    if (record->max_fanout)
      out_ << "set_max_fanout " << Value(*record->max_fanout, 1.0) << object << "\n";
    if (record->logic) {
      const char* command = *record->logic == cdm::kLogicZero  ? "set_logic_zero"
                            : *record->logic == cdm::kLogicOne ? "set_logic_one"
                                                               : "set_logic_dc";
      out_ << command << object << "\n";
    }
  }
}

void SdcWriter::WritePins() {
  cdm::Design* design = store_.GetDesign();
  for (auto& [pin, record] : OrderedPins(store_, design)) {
    const std::string object = " " + PinObject(pin);
    if (record->case_value) {
      static const char* const kNames[] = {"0", "1", "", "rising", "falling"};
      out_ << "set_case_analysis " << kNames[*record->case_value] << object << "\n";
    }
    if (record->ideal_source)
      out_ << "set_ideal_network" << (record->ideal_no_propagate ? " -no_propagate" : "") << object
           << "\n";
    if (record->dont_touch_network)
      out_ << "set_dont_touch_network" << (record->dont_touch_no_propagate ? " -no_propagate" : "")
           << object << "\n";
    if (record->propagated_clock) out_ << "set_propagated_clock" << object << "\n";
    WritePair(record->clock_uncertainty, "-hold", "-setup",
              [&](const std::string& flag, float value) {
                out_ << "set_clock_uncertainty" << flag << " " << Time(value) << object << "\n";
              });
    auto time = [&](float value) { return Time(value); };
    WriteSlots(record->clock_latency[1], "set_clock_latency -source", object, time);
    WriteSlots(record->clock_latency[0], "set_clock_latency", object, time);
  }
}

void SdcWriter::WriteNetsAndCells() {
  auto nets = store_.NetRecords();
  std::sort(nets.begin(), nets.end(),
            [](const auto& a, const auto& b) { return a.second->name < b.second->name; });
  for (auto& entry : nets) {
    const auto& record = entry.second;  // a lambda below takes it: no structured binding
    const std::string object = " [get_nets " + Pattern(record->name) + "]";
    WritePair(record->wire_cap, "-min", "-max", [&](const std::string& flag, float value) {
      out_ << "set_load" << flag << (record->subtract_pin_load ? " -subtract_pin_load" : "") << " "
           << Cap(value) << object << "\n";
    });
  }
  auto cells = store_.CellRecords();
  std::sort(cells.begin(), cells.end(),
            [](const auto& a, const auto& b) { return a.second->name < b.second->name; });
  for (auto& [cell, record] : cells) {
    const std::string object = " [get_cells " + Pattern(record->name) + "]";
    auto line = [&](const char* flag, const cdm::WireLoad* wire_load) {
      out_ << "set_wire_load_model -name " << Quote(wire_load->name);
      if (wire_load->library) out_ << " -library " << Quote(wire_load->library->Name());
      out_ << flag << object << "\n";
    };
    if (record->wire_load[0] && record->wire_load[0] == record->wire_load[1]) {
      line("", record->wire_load[0]);
    } else {
      if (record->wire_load[0]) line(" -min", record->wire_load[0]);
      if (record->wire_load[1]) line(" -max", record->wire_load[1]);
    }
  }
}

void SdcWriter::WriteExceptions() {
  // The objects of a point: a query per run of objects of one kind, and a
  // list of the queries when the kinds are mixed.
  auto objects = [](const ExceptionPoint& point) {
    std::vector<std::string> parts;
    for (size_t i = 0; i < point.objects.size();) {
      const K kind = point.objects[i].ref.kind;
      std::vector<std::string> names;
      size_t j = i;
      for (; j < point.objects.size() && point.objects[j].ref.kind == kind; ++j)
        names.push_back(point.objects[j].name);
      parts.push_back(Query(kind, names));
      i = j;
    }
    if (parts.size() == 1) return parts.front();
    std::string text = "[list";
    for (const std::string& part : parts) text += " " + part;
    return text + "]";
  };
  for (const PathException& exception : store_.Exceptions()) {
    switch (exception.type) {
      case PathException::Type::kFalsePath:
        out_ << "set_false_path";
        break;
      case PathException::Type::kMulticyclePath:
        out_ << "set_multicycle_path " << Value(exception.value, 1.0);
        break;
      case PathException::Type::kMaxDelay:
        out_ << "set_max_delay " << Time(exception.value);
        break;
      case PathException::Type::kMinDelay:
        out_ << "set_min_delay " << Time(exception.value);
        break;
      case PathException::Type::kGroupPath:
        if (exception.group_default)
          out_ << "group_path -default";
        else
          out_ << "group_path -name " << Quote(exception.group);
        if (exception.weight != 1.0f) out_ << " -weight " << Value(exception.weight, 1.0);
        break;
    }
    if ((exception.type == PathException::Type::kFalsePath ||
         exception.type == PathException::Type::kMulticyclePath) &&
        exception.setup != exception.hold)
      out_ << (exception.setup ? " -setup" : " -hold");
    if (exception.start) out_ << " -start";
    if (exception.end) out_ << " -end";
    if (exception.ignore_clock_latency) out_ << " -ignore_clock_latency";
    if (exception.from)
      out_ << EdgesFlag(exception.from->edges, "-rise_from", "-fall_from")
           << (exception.from->edges == cdm::RiseFallBoth::rise_fall_ ? " -from" : "") << " "
           << objects(*exception.from);
    for (const ExceptionPoint& through : exception.throughs)
      out_ << EdgesFlag(through.edges, "-rise_through", "-fall_through")
           << (through.edges == cdm::RiseFallBoth::rise_fall_ ? " -through" : "") << " "
           << objects(through);
    if (exception.to) {
      if (exception.to->objects.empty()) {
        out_ << EdgesFlag(exception.to->edges, "-rise", "-fall");
      } else {
        out_ << EdgesFlag(exception.to->edges, "-rise_to", "-fall_to")
             << (exception.to->edges == cdm::RiseFallBoth::rise_fall_ ? " -to" : "") << " "
             << objects(*exception.to);
      }
    }
    if (!exception.comment.empty()) out_ << " -comment " << Quote(exception.comment);
    out_ << "\n";
  }
  for (const DisabledTiming& disabled : store_.Disabled()) {
    out_ << "set_disable_timing";
    if (!disabled.from.empty()) out_ << " -from " << Quote(disabled.from);
    if (!disabled.to.empty()) out_ << " -to " << Quote(disabled.to);
    out_ << " " << Object(disabled.object.ref) << "\n";
  }
}

}  // namespace sta::sdc
