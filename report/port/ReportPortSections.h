// Sections of report_port. The command splits the chosen ports into an
// input side (inputs and inouts) and an output side, and hands each section
// the vector it reports on; every section is one table, printed at once.
#pragma once

#include <vector>

#include "format/ReportMgr.h"
#include "hostapi/cdm/Units.h"

class ReportPortCmd;

namespace cdm {
class Design;
class LibertyLib;
class LibPort;
class MinMax;
class Port;
}  // namespace cdm

namespace sta::sdc {
class PortDelay;
class SdcMgr;
}  // namespace sta::sdc

using PortList = std::vector<cdm::Port*>;

// The frame: banner, legend and the basic table; the -verbose tail.
bool ReportBasicInfo(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, cdm::Design* design,
                     ReportPortCmd* cmd, PortList& inputs, PortList& outputs);
void ReportOnePort(ReportTable& table, sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, cdm::Port* port,
                   int digits);
void ReportVerbose(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, cdm::Design* design, PortList& all,
                   PortList& inputs, PortList& outputs, int digits);

// Drive and external load.
void ReportDrive(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, PortList& ports, int digits);
void ReportPortExtLoad(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, PortList& ports, int digits);

// Delays and transitions.
void ReportInputDelay(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, cdm::Design* design,
                      PortList& ports, int digits);
void ReportOutputDelay(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, cdm::Design* design,
                       PortList& ports, int digits);
// One row of either delay table: the four values under `group`, the clock
// and the reference pin.
void PrintOneDelayRow(ReportTable& table, const cdm::LibUnits& units,
                      const sta::sdc::PortDelay* delay, const std::string& group, int digits);
void ReportInputTransition(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, PortList& inputs,
                           PortList& outputs, int digits);

// Driving cells.
void ReportDrivingCell(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, PortList& ports, int digits);

// Shared by the sections.
// The units numbers print in: the default library's, or plain SI units of
// scale 1 when no library is loaded.
cdm::LibUnits PortUnits(const cdm::LibertyLib* lib);
// Input side: direction 0 or 2 (the bit of value 2 masked off gives 0).
bool IsInputSide(const cdm::Port* port);
// Declares the columns of a section table: (name, group) pairs, the first
// being the key column.
void AddPortColumns(ReportTable& table,
                    const std::vector<std::pair<const char*, const char*>>& columns);
// A library pin's capacitance limit as the port reports read it: the
// database gives -1 for a limit the library leaves out (report_lib shows
// that), these reports take 0.0 for it.
double PortCapLimit(const cdm::LibPort* port, const cdm::MinMax* minmax);
