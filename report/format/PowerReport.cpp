#include "format/PowerReport.h"

#include <iomanip>
#include <sstream>
#include <utility>
#include <vector>

#include "format/ReportMgr.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibRecords.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/cdm/Selectors.h"
#include "hostapi/msg/Msg.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"

namespace {

const char* const kPower[] = {"Internal Power", "Switching Power", "Leakage Power", "Total Power"};

}  // namespace

std::string PowerReport::FloatToScientific(float value, int digits, float factor) const {
  const float product = value * factor;
  std::ostringstream out;
  out << std::scientific << std::setprecision(Digits(digits)) << product;
  return out.str();
}

std::string PowerReport::FloatToDefault(float value, int digits, float factor) const {
  std::ostringstream out;
  out << std::setprecision(Digits(digits)) << value * factor;
  return out.str();
}

std::string PowerReport::FloatToFix(float value, int digits, float factor) const {
  std::ostringstream out;
  out << std::fixed << std::setprecision(Digits(digits)) << value * factor;
  return out.str();
}

std::string PowerReport::FloatToPercent(float value, int digits, float factor) const {
  float percent = factor * 100.0f;
  percent = percent * value;
  std::ostringstream out;
  out << std::fixed << std::setprecision(Digits(digits)) << percent << "%";
  return out.str();
}

void PowerReport::PrintHeaderInfo() {
  cdm::Root* root = cdm::DbManager::GetRoot();
  std::vector<std::pair<std::string, std::string>> libraries;
  cdm::Iterator<cdm::LibertyLib>* libs = root->LibertyLibIter();
  while (libs->HasNext()) {
    cdm::LibertyLib* lib = libs->Next();
    libraries.emplace_back(lib->Name(), lib->GetLibFileName());
  }
  delete libs;

  const cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  const cdm::LibertyLib* library = cdm::DbManager::GetDefaultLiberty();
  const cdm::OperatingConditions* conditions =
      library ? library->GetDefaultOperatingConditions() : nullptr;
  sta::sdc::SdcMgr* sdc = sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr);
  const cdm::WireLoad* wire_load = sdc ? sdc->getWireLoadModel(cdm::MinMax::max_) : nullptr;

  const std::string design_name = design ? design->Name() : std::string();
  const std::string library_name = library ? library->Name() : std::string();
  const char* mode = sdc ? cdm::wireloadModeString(sdc->getWireLoadMode()) : nullptr;

  msg::Print_Result("******************************************");
  msg::Print_Result("Report: power");
  msg::Print_Result("Design: %s", design_name.c_str());
  msg::Print_Result("Version: ");
  msg::Print_Result("Date  : %s", GetTime().c_str());
  msg::Print_Result("******************************************");
  msg::Print_Result("Library(s) Used:");
  msg::InsertEmptyLine();
  for (const auto& lib : libraries)
    msg::Print_Result("    %s (File: %s)", lib.first.c_str(), lib.second.c_str());
  msg::InsertEmptyLine();
  msg::Print_Result("Operating Conditions: %s   Library: %s",
                    conditions ? conditions->name.c_str() : "unknown", library_name.c_str());
  msg::Print_Result("Wire Load Model Mode: %s", mode ? mode : "");
  msg::InsertEmptyLine();
  msg::Print_Result("Design        Wire Load Model            Library");
  msg::Print_Result("------------------------------------------------");
  msg::Print_Result("%s       %s       %s", design_name.c_str(),
                    wire_load ? wire_load->name.c_str() : "unknown", library_name.c_str());
  msg::InsertEmptyLine();
}

void PowerReport::PrintPowerInfo(cdm::PowerResult total, cdm::PowerResult sequential,
                                 cdm::PowerResult combinational, cdm::PowerResult macro,
                                 cdm::PowerResult pad) {
  PrintHeaderInfo();
  ReportTable table;
  table.AddItem("Power Group", true, "", ReportTable::kLeft, 0);
  for (const char* name : kPower) table.AddItem(name, false, "", ReportTable::kLeft, 0);
  table.AddItem("(  %  )", false, "", ReportTable::kLeft, 0);
  table.AddItem("Attrs", false, "", ReportTable::kLeft, 0);

  auto add_row = [&](const char* label, const cdm::PowerResult& power) {
    table.InsertValue("Power Group", label);
    table.InsertValue(kPower[0], FloatToScientific(power.internal, 0, 1.0f));
    table.InsertValue(kPower[1], FloatToScientific(power.switching, 0, 1.0f));
    table.InsertValue(kPower[2], FloatToScientific(power.leakage, 0, 1.0f));
    table.InsertValue(kPower[3], FloatToScientific(power.Total(), 0, 1.0f));
  };
  const std::pair<const char*, const cdm::PowerResult*> groups[] = {
      {"Sequential", &sequential},
      {"Combinational", &combinational},
      {"Macro", &macro},
      {"Pad", &pad}};
  for (const auto& group : groups) {
    add_row(group.first, *group.second);
    const float share = group.second->Total() / total.Total();
    table.InsertValue("(  %  )", FloatToPercent(share, 0, 1.0f));
  }
  table.InsertSeparator('-');
  add_row("Total", total);
  table.PrintTable(0, true);
}

void PowerReport::PrintInstsPowerInfo(const std::map<const cdm::Cell*, cdm::PowerResult>& cells) {
  ReportTable table;
  table.AddItem("Cell", true, "", ReportTable::kLeft, 0);
  for (const char* name : kPower) table.AddItem(name, false, "", ReportTable::kLeft, 0);
  table.AddItem("Attrs", false, "", ReportTable::kLeft, 0);

  auto add_row = [&](const std::string& label, const cdm::PowerResult& power) {
    table.InsertValue("Cell", label);
    table.InsertValue(kPower[0], FloatToScientific(power.internal, 0, 1.0f));
    table.InsertValue(kPower[1], FloatToScientific(power.switching, 0, 1.0f));
    table.InsertValue(kPower[2], FloatToScientific(power.leakage, 0, 1.0f));
    table.InsertValue(kPower[3], FloatToScientific(power.Total(), 0, 1.0f));
  };
  cdm::PowerResult sum;
  for (const auto& entry : cells) {
    sum += entry.second;
    add_row(entry.first->Name(), entry.second);
  }
  table.InsertSeparator('-');
  add_row("Total " + std::to_string(cells.size()) + " cells", sum);
  table.PrintTable(0, true);
}

void PowerReport::PrintNetsPowerInfo(
    const std::map<const cdm::Net*, cdm::SwitchPowerRecord>& nets) {
  ReportTable table;
  const char* const columns[] = {
      "Net", "Vdd", "Net Load", "Static Prob.", "Toggle Rate", "Switching Power", "Attrs"};
  bool key = true;
  for (const char* name : columns) {
    table.AddItem(name, key, "", ReportTable::kLeft, 0);
    key = false;
  }
  const float pico = 1e12f;
  float total = 0.0f;
  for (const auto& entry : nets) {
    const cdm::SwitchPowerRecord& record = entry.second;
    table.InsertValue("Net", entry.first->Name());
    table.InsertValue("Vdd", FloatToFix(record.vdd, 3, 1.0f));
    table.InsertValue("Net Load", FloatToFix(record.net_load, 4, pico));
    table.InsertValue("Static Prob.", FloatToFix(record.static_probability, 4, 1.0f));
    table.InsertValue("Toggle Rate", FloatToFix(record.toggle_rate, 5, 1.0f));
    table.InsertValue("Switching Power", FloatToScientific(record.switching_power, 0, 1.0f));
    table.InsertValue("Attrs", cdm::OriginToString(record.origin));
    total += record.switching_power;
  }
  table.InsertSeparator('-');
  table.InsertValue("Net", "Total " + std::to_string(nets.size()) + " nets");
  table.InsertValue("Switching Power", FloatToScientific(total, 0, 1.0f));
  table.PrintTable(0, true);
}
