// The library-level sections of report_lib: units, operating conditions,
// wire loads, thresholds, delay and power models with their templates.
#include <cstdio>
#include <iomanip>
#include <map>

#include "hostapi/cdm/Selectors.h"
#include "library/ReportLibSections.h"

namespace {

// Wire-load resistance and capacitance are kept in the library's own units
// (per unit length), which is what the block shows.
void PrintOneWireLoad(std::ostream& os, cdm::LibertyLib* lib, const cdm::WireLoad* wire_load) {
  os << "\n"
     << "Name           :" << wire_load->name << "\n"
     << "Location       :" << lib->Name() << "\n"
     << "Resistance     :" << std::fixed << std::setprecision(8) << wire_load->resistance << "\n"
     << "Capacitance    :" << std::fixed << std::setprecision(8) << wire_load->capacitance << "\n"
     << "Area           :" << 0 << "\n"
     << "Slope          :" << wire_load->slope << "\n"
     << "Fanout   Length   Points Average Cap Std Deviation\n"
     << "--------------------------------------------------------------\n";
  for (const auto& point : wire_load->points) {
    os << std::setw(6) << point.first << std::setw(9) << std::fixed << std::setprecision(2)
       << point.second << "\n";
  }
}

void PrintThresholds(std::ostream& os, cdm::LibertyLib* lib) {
  const cdm::RiseFall* rise = cdm::RiseFall::rise_;
  const cdm::RiseFall* fall = cdm::RiseFall::fall_;
  os << "Delay Threshold Trip-Points:\n"
     << "        input_threshold_pct_rise:" << std::setw(9) << lib->GetInputThreshold(rise) << "\n"
     << "        output_threshold_pct_rise:" << std::setw(8) << lib->GetOutputThreshold(rise)
     << "\n"
     << "        input_threshold_pct_fall:" << std::setw(9) << lib->GetInputThreshold(fall) << "\n"
     << "        output_threshold_pct_fall:" << std::setw(8) << lib->GetOutputThreshold(fall)
     << "\n\n\n";
  os << "Slew Threshold Trip-Points:\n"
     << "        slew_lower_threshold_pct_rise:" << std::setw(4) << lib->GetSlewLowerThreshold(rise)
     << "\n"
     << "        slew_upper_threshold_pct_rise:" << std::setw(4) << lib->GetSlewUpperThreshold(rise)
     << "\n"
     << "        slew_lower_threshold_pct_fall:" << std::setw(4) << lib->GetSlewLowerThreshold(fall)
     << "\n"
     << "        slew_upper_threshold_pct_fall:" << std::setw(4) << lib->GetSlewUpperThreshold(fall)
     << "\n\n"
     << "        slew_derate_from_library:" << std::setw(8) << lib->GetSlewDerateFromLibrary()
     << "\n\n";
}

// A timing default prints its number only when it is unset (-1); a set one
// reads "undefined". The comparison is that of the value cut to an integer.
std::string TimingDefaultText(double value) {
  if (value > -2.0 && value <= -1.0) {
    char text[64];
    std::snprintf(text, sizeof text, "%f", value);
    return text;
  }
  return "undefined";
}

void PrintTemplateList(std::ostream& os, cdm::LibertyLib* lib, cdm::TemplateClass kind) {
  os << "   Template_name\n"
     << "   ----------------------------------------------------------------------------\n";
  for (const cdm::LibTableTemplate* table : lib->GetAllTableTemplates(kind)) {
    os << "   " << table->name << "\n";
    const int axes = table->GetAxisCount();
    for (int i = 1; i <= axes; ++i) {
      os << "       VARIABLE_" << i << ": " << cdm::to_string(table->GetVariableType(i)) << "\n";
    }
    for (int i = 1; i <= axes; ++i) {
      std::unique_ptr<std::vector<float>> index(table->GetOriginalIndex(i));
      os << "       INDEX_" << i << ":  " << floatlist2string(*index, ' ') << "\n";
    }
  }
}

}  // namespace

void PrintBasicInfo(std::ostream& os, cdm::LibertyLib* lib) {
  const cdm::LibUnits& units = lib->GetUnits();
  const float energy = units.voltage.scale * units.voltage.scale * units.current.scale;
  os << "\n"
     << "Time Unit               :" << units.time.libval() << "\n"
     << "Capacitive Load Unit    :" << units.capacitance.libval() << "\n"
     << "Pulling Resistance Unit :" << units.pulling_resistance.libval() << "\n"
     << "Voltage Unit            :" << units.voltage.libval() << "\n"
     << "Current Unit            :" << units.current.libval() << "\n"
     << "Dynamic Energy Unit     :" << energy << "pJ\n"
     << "Leakage Power Unit      :" << units.power.libval() << "\n"
     << "Bus Naming Style        :" << lib->GetBusOpenChar() << lib->GetBusCloseChar() << "\n\n";

  os << "Operating Conditions:\n\n";
  for (const cdm::OperatingConditions* cond : lib->GetAllOperatingConditions()) {
    os << "    Operating Condition Name : " << cond->name << "\n"
       << "    Library : " << lib->Name() << "\n"
       << "    Process :  " << cond->process << "\n"
       << "    Temperature :  " << cond->temperature << "\n"
       << "    Voltage :  " << cond->voltage << "\n"
       << "    Interconnect Model : " << cdm::to_string(cond->tree) << "\n\n";
  }
  os << "Input Voltages:\n\n    No input_voltage groups specified.\n\n"
     << "Output Voltages:\n\n    No output_voltage groups specified.\n\n";

  os << "Wire Loading Model:\n\n";
  for (const cdm::WireLoad* wire_load : lib->GetAllWireLoads()) {
    PrintOneWireLoad(os, lib, wire_load);
  }
  os << "\nWire Loading Model Mode:";
  const char* mode = cdm::wireloadModeString(lib->GetDefaultWireloadMode());
  if (!mode) {
    // Nothing more is appended once the mode has no text.
    os.setstate(std::ios::badbit);
    return;
  }
  os << mode << "\n\n";
  os << "Porosity information:\n\n    No porosity information specified.\n\n"
     << "In_place optimization mode:  " << lib->GetInPlaceSwapMode() << "\n\n"
     << "Timing Ranges:\n\n    No timing ranges specified.\n\n\n";
  PrintThresholds(os, lib);
}

void PrintOperatingCondition(std::ostream& os, cdm::LibertyLib* lib,
                             const cdm::OperatingConditions* cond) {
  const cdm::LibUnits& units = lib->GetUnits();
  os << "    Operating Condition Name : " << cond->name << "\n"
     << "    Library : " << lib->Name() << "\n"
     << "    Process : " << std::fixed << std::setprecision(2) << cond->process << "\n"
     << "    Temperature : " << std::fixed << std::setprecision(2) << cond->temperature << "\n"
     << "    Voltage : " << std::fixed << std::setprecision(2)
     << cond->voltage / units.voltage.scale << "\n"
     << "    Interconnect Model : " << cdm::to_string(cond->tree) << "\n\n";
}

void PrintOperatingConditions(std::ostream& os, cdm::LibertyLib* lib) {
  os << "Operating Conditions:\n\n\n";
  for (const cdm::OperatingConditions* cond : lib->GetAllOperatingConditions()) {
    PrintOperatingCondition(os, lib, cond);
  }
}

void PrintDelayModel(std::ostream& os, cdm::LibertyLib* lib) {
  os << "\nDelay Model             : " << cdm::to_string(lib->GetDelayModelType()) << "\n"
     << "Timing Attributes Defaults:\n"
     << "   Attribute\t\t\tDefault\n"
     << "   -----------------------------------------\n"
     << "     max_transition\t\t" << TimingDefaultText(lib->GetDefaultMaxSlew()) << "\n"
     << "     max_fanout\t\t\t" << TimingDefaultText(lib->GetDefaultMaxFanout()) << "\n"
     << "     fanout_load\t\t" << TimingDefaultText(lib->GetDefaultFanoutLoad()) << "\n"
     << "     max_capacitance\t" << TimingDefaultText(lib->GetDefaultMaxCapacitance()) << "\n"
     << "\n";
  if (static_cast<int>(lib->GetDelayModelType()) != 3) {
    os << "\n";
    return;
  }
  os << "Lookup Table Template:\n\n";
  PrintTemplateList(os, lib, static_cast<cdm::TemplateClass>(0));
  os << "\n";
}

void PrintPowerModel(std::ostream& os, cdm::LibertyLib* lib) {
  os << "\nPower Model             : " << cdm::to_string(lib->GetPowerModelType()) << "\n"
     << "default_cell_leakage_power               : "
     << GetDoubleAttrString(lib->GetDefaultCellLeakagePower(), 1.0, " ") << "\n"
     << "default_leakage_power_density            : "
     << GetDoubleAttrString(lib->GetDefaultLeakagePowerDensity(), 1.0, " ") << "\n";
  const int model = static_cast<int>(lib->GetPowerModelType());
  if (model != 0 && model != 2) {
    os << "\n";
    return;
  }
  os << "Internal Power Lookup Table Template:\n\n";
  PrintTemplateList(os, lib, static_cast<cdm::TemplateClass>(1));
  os << "\n";
}

void PrintUserDefinedAttrTemplate(std::ostream& os, cdm::LibertyLib* lib) {
  os << "\nUser-defined Data Template:\n\n"
     << "   ----------------------------------------------------------------------------\n";
  const auto attrs = lib->GetUserDefinedAttrs();
  for (const auto& entry : attrs) os << entry.second->DumpSelf();
  os << "\n\n";
}

void PrintVoltageInfo(std::ostream& os, cdm::LibertyLib* lib) {
  os << "nom_voltage : " << lib->GetNomVoltage() << "\n"
     << "Voltage Map: Voltage Name   : Voltage Value\n";
  for (const auto& entry : lib->GetVoltageMap()) {
    os << std::string(13, ' ') << std::left << std::setw(14) << entry.first << entry.second << "\n";
  }
}
