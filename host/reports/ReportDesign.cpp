// report_design: what an engineer checks before timing a design. The
// banner, the libraries in use with their files, the operating conditions
// in force, the wire-load model (and how it was chosen) with its table, the
// wire-load mode, the counts of clocks, input and output delays, the
// disabled timing arcs and the design rules set on the design. The format
// is in docs/report_design.md.
#include <cstdio>
#include <string>
#include <vector>

#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/HostServices.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/cmd/HostReportCmds.h"
#include "hostapi/msg/Msg.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"
#include "sdc/SdcStore.h"
#include "sdc/SdcWriter.h"
#include "sdc/WireLoadChoice.h"

namespace {

using sta::sdc::SdcStore;
using sta::sdc::WireLoadChoice;

std::string Fixed(double value) {
  char text[64];
  std::snprintf(text, sizeof text, "%.2f", value);
  return text;
}

// A value as the library writes it.
std::string Plain(double value) {
  char text[64];
  std::snprintf(text, sizeof text, "%g", value);
  return text;
}

void PrintBanner(const cdm::Design* design) {
  const char* stars = "****************************************";
  msg::Print_Result("%s", stars);
  msg::Print_Result("Report : design");
  msg::Print_Result("Design : %s", design->Name().c_str());
  msg::Print_Result("Version: ");
  msg::Print_Result("Date   : %s", GetTimeDesign().c_str());
  msg::Print_Result("%s", stars);
}

void PrintLibraries() {
  msg::InsertEmptyLine();
  msg::Print_Result("Library(s) Used:");
  msg::InsertEmptyLine();
  const std::vector<cdm::LibertyLib*>& libs = cdm::DbManager::GetRoot()->LibertyLibs();
  if (libs.empty()) msg::Print_Result("    None");
  for (const cdm::LibertyLib* lib : libs)
    msg::Print_Result("    %s (File: %s)", lib->Name().c_str(), lib->GetLibFileName().c_str());
}

void PrintConditions(SdcStore& store) {
  const sta::sdc::DesignConstraints& design = store.DesignRef();
  const cdm::LibertyLib* default_lib = cdm::DbManager::GetDefaultLiberty();
  for (const cdm::MinMax* minmax : {cdm::MinMax::max_, cdm::MinMax::min_}) {
    const int index = minmax->index();
    if (minmax == cdm::MinMax::min_ &&
        design.operating_conditions[0] == design.operating_conditions[1])
      break;  // the same for both
    const cdm::OperatingConditions* conditions = design.operating_conditions[index];
    const cdm::LibertyLib* lib = design.operating_library[index];
    const char* how = "set by set_operating_conditions";
    if (!conditions) {
      lib = default_lib;
      conditions = lib ? lib->GetDefaultOperatingConditions() : nullptr;
      how = "the library's default";
    }
    msg::InsertEmptyLine();
    const bool both = design.operating_conditions[0] == design.operating_conditions[1];
    msg::Print_Result("Operating Conditions%s:", both ? "" : (index ? " (max)" : " (min)"));
    if (!conditions) {
      msg::Print_Result("    None specified.");
      continue;
    }
    msg::Print_Result("    Name               : %s (%s)", conditions->name.c_str(), how);
    msg::Print_Result("    Library            : %s", lib ? lib->Name().c_str() : "");
    msg::Print_Result("    Process            : %s", Fixed(conditions->process).c_str());
    msg::Print_Result("    Temperature        : %s", Fixed(conditions->temperature).c_str());
    msg::Print_Result("    Voltage            : %s", Fixed(conditions->voltage).c_str());
    msg::Print_Result("    Interconnect Model : %s", cdm::to_string(conditions->tree).c_str());
  }
}

std::string HowChosen(const WireLoadChoice& choice) {
  switch (choice.source) {
    case WireLoadChoice::Source::kUser:
      return "set by set_wire_load_model";
    case WireLoadChoice::Source::kArea:
      return "chosen by area " + Fixed(choice.area) + " from selection group " +
             (choice.selection ? choice.selection->name : std::string());
    case WireLoadChoice::Source::kLibraryDefault:
      return "the library's default";
    case WireLoadChoice::Source::kNone:
      break;
  }
  return "";
}

void PrintWireLoad(SdcStore& store) {
  const WireLoadChoice max = sta::sdc::ChooseDesignWireLoad(store, cdm::MinMax::max_);
  const WireLoadChoice min = sta::sdc::ChooseDesignWireLoad(store, cdm::MinMax::min_);
  for (const WireLoadChoice* choice : {&max, &min}) {
    if (choice == &min && min.model == max.model) break;
    const bool both = min.model == max.model;
    msg::InsertEmptyLine();
    msg::Print_Result("Wire Load Model%s:", both ? "" : (choice == &max ? " (max)" : " (min)"));
    const cdm::WireLoad* model = choice->model;
    if (!model) {
      msg::Print_Result("    None specified.");
      continue;
    }
    msg::Print_Result("    Name        : %s (%s)", model->name.c_str(), HowChosen(*choice).c_str());
    msg::Print_Result("    Library     : %s", model->library ? model->library->Name().c_str() : "");
    msg::Print_Result("    Resistance  : %s", Plain(model->resistance).c_str());
    msg::Print_Result("    Capacitance : %s", Plain(model->capacitance).c_str());
    msg::Print_Result("    Area        : %s", Plain(model->area).c_str());
    msg::Print_Result("    Slope       : %s", Plain(model->slope).c_str());
    msg::Print_Result("    Fanout    Length");
    for (const auto& [fanout, length] : model->points)
      msg::Print_Result("    %-9d %s", fanout, Plain(length).c_str());
  }
  msg::InsertEmptyLine();
  msg::Print_Result("Wire Load Model Mode: %s",
                    cdm::wireloadModeString(sta::sdc::WireLoadModeInForce(store)));
}

void PrintCount(const char* what, size_t count) {
  if (count == 0)
    msg::Print_Result("%-15s: None specified.", what);
  else
    msg::Print_Result("%-15s: %zu", what, count);
}

void PrintTimingSetup(SdcStore& store) {
  size_t inputs = 0, outputs = 0;
  for (const auto& [pin, record] : store.PinRecords()) {
    inputs += record->input_delays.size();
    outputs += record->output_delays.size();
  }
  msg::InsertEmptyLine();
  PrintCount("Clocks", store.Clocks().size());
  PrintCount("Input Delays", inputs);
  PrintCount("Output Delays", outputs);

  msg::InsertEmptyLine();
  msg::Print_Result("Disabled Timing Arcs:");
  if (store.Disabled().empty()) msg::Print_Result("    None specified.");
  for (const sta::sdc::DisabledTiming& disabled : store.Disabled()) {
    std::string arcs;
    if (!disabled.from.empty() || !disabled.to.empty())
      arcs = "  " + (disabled.from.empty() ? std::string("*") : disabled.from) + " -> " +
             (disabled.to.empty() ? std::string("*") : disabled.to);
    msg::Print_Result("    %s %s%s", query::KindName(disabled.object.ref.kind),
                      disabled.object.name.c_str(), arcs.c_str());
  }
}

void PrintDesignRules(SdcStore& store) {
  const sta::sdc::DesignConstraints& design = store.DesignRef();
  const cdm::LibertyLib* lib = cdm::DbManager::GetDefaultLiberty();
  // The unit the values are printed in: set_units's, else the default
  // library's, else the one the store reads values in without a library.
  auto unit = [&](sta::sdc::SdcUnits::Quantity quantity,
                  const cdm::Unit& (cdm::LibertyLib::*pick)() const,
                  const char* fallback) -> std::string {
    const std::string user = store.Units().UserText(quantity);
    if (!user.empty()) return user;
    return lib ? (lib->*pick)().libval() : std::string(fallback);
  };
  auto scale = [&](sta::sdc::SdcUnits::Quantity quantity) { return store.Units().Scale(quantity); };
  msg::InsertEmptyLine();
  msg::Print_Result("Design Rules:");
  bool any = false;
  auto line = [&](const char* name, const std::optional<float>& value, const std::string& text) {
    if (!value) return;
    any = true;
    msg::Print_Result("    %-16s: %s", name, text.c_str());
  };
  using sta::sdc::SdcWriter;
  using Q = sta::sdc::SdcUnits;
  if (design.max_transition)
    line("max_transition", design.max_transition,
         SdcWriter::Value(*design.max_transition, scale(Q::kTime)) + " (" +
             unit(Q::kTime, &cdm::LibertyLib::GetTimeUnit, "1ns") + ")");
  if (design.max_capacitance)
    line("max_capacitance", design.max_capacitance,
         SdcWriter::Value(*design.max_capacitance, scale(Q::kCapacitance)) + " (" +
             unit(Q::kCapacitance, &cdm::LibertyLib::GetCapacitanceUnit, "1pF") + ")");
  if (design.min_capacitance)
    line("min_capacitance", design.min_capacitance,
         SdcWriter::Value(*design.min_capacitance, scale(Q::kCapacitance)) + " (" +
             unit(Q::kCapacitance, &cdm::LibertyLib::GetCapacitanceUnit, "1pF") + ")");
  if (design.max_fanout)
    line("max_fanout", design.max_fanout, SdcWriter::Value(*design.max_fanout, 1.0));
  if (design.max_area) line("max_area", design.max_area, SdcWriter::Value(*design.max_area, 1.0));
  if (!any) msg::Print_Result("    None specified.");
}

}  // namespace

int ReportDesignCmd::exec() {
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  SdcStore& store = sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr)->store();
  if (!design || !store.Sync()) {
    msg::Print_Result("Current Design is not Define");
    return 1;
  }
  // -nosplit and -physical are accepted: no line is split, and there are
  // no physical figures to add.
  PrintBanner(design);
  PrintLibraries();
  PrintConditions(store);
  PrintWireLoad(store);
  PrintTimingSetup(store);
  PrintDesignRules(store);
  return 0;
}

int ReportDesignCmd::postExec() {
  return 0;
}
