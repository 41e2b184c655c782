// report_units: the six units of the default library under a fixed banner,
// built in one stream and printed with one call.
#include <sstream>
#include <string>

#include "cmd/TclCmd.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Units.h"
#include "hostapi/msg/Msg.h"

namespace {

void PrintUnitLine(std::ostringstream& text, const char* label, const cdm::Unit& unit,
                   const char* word) {
  text << label << unit.scale << word << unit.transSuffix() << "\n";
}

}  // namespace

int ReportUnitsCmd::exec() {
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  if (!design) {
    msg::Print_Result(
        "report_units command must be used after a design is loaded and linked to a library");
    return 1;
  }
  cdm::LibertyLib* lib = cdm::DbManager::GetDefaultLiberty();
  std::ostringstream text;
  const std::string stars(40, '*');
  text << stars << "\n"
       << "Report : units\n"
       << "Design : " << design->Name() << "\n"
       << "Version: \n"
       << "Date   : \n"
       << stars << "\n"
       << "Units\n"
       << std::string(40, '-') << "\n";
  if (lib) {
    const cdm::LibUnits& units = lib->GetUnits();
    PrintUnitLine(text, "Time_Unit            :", units.time, " Second");
    PrintUnitLine(text, "Capacitive_load_unit :", units.capacitance, " Farad");
    PrintUnitLine(text, "Resistance_unit      :", units.resistance, " Ohm");
    PrintUnitLine(text, "Voltage_unit         :", units.voltage, " Volt");
    PrintUnitLine(text, "Power_unit           :", units.power, " Watt");
    PrintUnitLine(text, "Current_unit         :", units.current, " Amp");
  } else {
    text << "Time_Unit            : N/A\n"
         << "Capacitive_load_unit : N/A\n"
         << "Resistance_unit      : N/A\n"
         << "Voltage_unit         : N/A\n"
         << "Power_unit           : N/A\n"
         << "Current_unit         : N/A\n";
  }
  // The design name goes into the format text unescaped, as the report
  // has always done.
  msg::Print_Result(text.str().c_str());
  return 0;
}
