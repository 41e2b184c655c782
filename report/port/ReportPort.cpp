// report_port: the ports of the current design, named or all, with their
// loads, limits and logic values in one basic table; -verbose adds the
// constraint tables, -drive prints only the drive tables of the inputs.
#include <memory>
#include <string>

#include "cmd/TclCmd.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/msg/Msg.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"
#include "port/ReportPortSections.h"

// The tail of -verbose, in its fixed order.
void ReportVerbose(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, cdm::Design* design, PortList& all,
                   PortList& inputs, PortList& outputs, int digits) {
  ReportPortExtLoad(sdc, lib, all, digits);
  if (!inputs.empty()) ReportInputDelay(sdc, lib, design, inputs, digits);
  if (sdc->hasDrivingCell()) ReportDrivingCell(sdc, lib, inputs, digits);
  ReportDrive(sdc, lib, inputs, digits);
  ReportInputTransition(sdc, lib, inputs, outputs, digits);
  if (!outputs.empty()) ReportOutputDelay(sdc, lib, design, outputs, digits);
}

int ReportPortCmd::exec() {
  if (!PreReport()) return 1;
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  sta::sdc::SdcMgr* sdc = sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr);
  cdm::LibertyLib* lib = cdm::DbManager::GetDefaultLiberty();

  PortList all;
  PortList inputs;
  PortList outputs;
  auto take = [&](cdm::Port* port) {
    all.push_back(port);
    (IsInputSide(port) ? inputs : outputs).push_back(port);
  };
  const std::vector<std::string> names = getPortList();
  if (!names.empty()) {
    for (const std::string& name : names) {
      if (cdm::Port* port = design->FindPort(name))
        take(port);
      else
        msg::ReportMsg(Report_002, name.c_str(), design->Name().c_str());
    }
  } else {
    std::unique_ptr<cdm::PortMemberPortIterator> ports(design->PortIter());
    while (ports->HasNext()) take(ports->Next());
  }
  if (inputs.empty() && outputs.empty()) return 1;

  if (getNosplit()) msg::ReportMsg(Report_001, "report_port", "-nosplit");
  if (getOnlyPhysical()) msg::ReportMsg(Report_001, "report_port", "-only_physical");

  const int digits = getSignificantDigits();
  if (getDrive() && !getVerbose()) {
    if (sdc->hasDrivingCell()) ReportDrivingCell(sdc, lib, inputs, digits);
    ReportDrive(sdc, lib, inputs, digits);
    return 0;
  }
  ReportBasicInfo(sdc, lib, design, this, inputs, outputs);
  if (getVerbose()) ReportVerbose(sdc, lib, design, all, inputs, outputs, digits);
  return 0;
}
