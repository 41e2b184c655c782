// report_lib: the choice of form, the banner and the cell summary. All text
// goes into one stream and reaches the result channel in one print.
#include <cstdio>
#include <sstream>

#include "cmd/TclCmd.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/msg/Msg.h"
#include "library/ReportLibSections.h"

namespace {

void PrintBanner(std::ostream& os, cdm::LibertyLib* lib) {
  os << "****************************************\n"
     << "Report : Library\n"
     << "Library: \n"
     << "Version: \n"
     << "Date   : \n"
     << "****************************************\n\n"
     << "Library Type            :Technology, PG pin Based\n"
     << "Tool Created            :\n"
     << "Date Created            :" << lib->GetDate() << "\n"
     << "Library Version         :" << lib->GetRevision() << "\n"
     << "Comments                :" << lib->GetComment() << "\n\n";
}

void PrintCellSummary(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names,
                      int reported) {
  os << "\nNumber of library cells: ";
  if (names.empty()) {
    os << lib->GetCellCount();
  } else {
    os << names.size();
  }
  os << "\nNumber of reported cells: " << reported << "\n";
}

void PrintCellAttrForm(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  PrintBasicInfo(os, lib);
  PrintCellPinAttrList(os);
  os << "\n";
  PrintCellAttrInfo(os, lib, names);
}

}  // namespace

void MsgErrorNonExistCell(const CellNames& /*missing*/, cdm::LibertyLib* /*lib*/) {}

std::string GetDoubleAttrString(double value, double scale, std::string default_text) {
  if (value + 1.0 < 0.000001) return default_text;
  // "%f" of the largest double takes some 320 characters.
  char text[400];
  std::snprintf(text, sizeof text, "%f", value / scale);
  return text;
}

int ReportLibCmd::exec() {
  if (!getLibnameOptional()) {
    msg::ReportMsg(COMMAND_001, "report_lib", "no lib specified!");
    printUsage();
    return 1;
  }
  const std::string lib_name = getLibname();
  const CellNames names = getCellList();
  const std::string op_cond_name = getOpCondName();
  cdm::LibertyLib* lib = cdm::DbManager::GetRoot()->GetLibertyLib(lib_name);
  if (!lib) {
    const std::string text = "lib name '" + lib_name + "' does not exist!";
    msg::ReportMsg(COMMAND_001, "report_lib", text.c_str());
    printUsage();
    return 1;
  }

  std::ostringstream os;
  PrintBanner(os, lib);
  if (getAll()) {
    PrintCellAttrForm(os, lib, names);
    PrintDelayModel(os, lib);
    PrintPowerModel(os, lib);
    PrintCellSummary(os, lib, names, PrintCellInfo(os, lib, names));
  } else if (getEm()) {
    PrintEmInfo(os, lib, names);
  } else if (getKFactors()) {
    PrintScalingAttrInfo(os, lib, names);
  } else if (getFullTable()) {
    PrintCellAttrForm(os, lib, names);
    PrintCellStateTable(os, lib, names, true);
  } else if (getTable()) {
    PrintCellAttrForm(os, lib, names);
    PrintCellStateTable(os, lib, names, false);
  } else if (getTiming()) {
    PrintDelayModel(os, lib);
    PrintCellSummary(os, lib, names, PrintCellTimingInfo(os, lib, names));
  } else if (getTimingArcs()) {
    PrintBasicInfo(os, lib);
    PrintCellPinAttrList(os);
    PrintCellAttrTimingArcInfo(os, lib, names);
  } else if (getTimingLabel()) {
    PrintTimingLabel(os, lib, names);
  } else if (getUserDefinedData()) {
    PrintUserDefinedAttrTemplate(os, lib);
    PrintUserDefinedData(os, lib, names);
  } else if (getPower()) {
    PrintBasicInfo(os, lib);
    PrintPowerModel(os, lib);
    PrintCellAttrPowerInfo(os, lib, names);
    PrintCellSummary(os, lib, names, PrintCellPowerInfo(os, lib, names));
  } else if (getPowerLabel()) {
    PrintPowerLabel(os, lib, names);
  } else if (getPgPin()) {
    PrintCellPinAttrList(os);
    PrintVoltageInfo(os, lib);
    PrintCellPgPinInfo(os, lib, names);
  } else if (getChar()) {
    PrintCellCharInfo(os, lib, names);
  } else if (getOperatingCondition()) {
    PrintOperatingConditions(os, lib);
  } else if (!op_cond_name.empty()) {
    const cdm::OperatingConditions* cond = lib->GetOperatingConditions(op_cond_name);
    if (!cond) return 1;
    os << "Operating Conditions:\n\n\n";
    PrintOperatingCondition(os, lib, cond);
  } else if (getNoise()) {
    PrintNoiseInfo(os, lib, names);
  } else if (getNoiseArcs()) {
    PrintBasicInfo(os, lib);
    PrintCellAndArcTypeAttrList(os);
    PrintNoiseArcsInfo(os, lib, names);
  } else {
    PrintCellAttrForm(os, lib, names);
  }
  msg::Print_Result(os.str().c_str());
  return 0;
}
