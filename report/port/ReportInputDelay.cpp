// The input delay table of report_port: every delay set on an input port,
// in the order set, one row each, and the port's maximum fan-out.
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/sta/SdcMgr.h"
#include "port/ReportPortSections.h"

void ReportInputDelay(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, cdm::Design* design,
                      PortList& ports, int digits) {
  const cdm::LibUnits units = PortUnits(lib);
  ReportTable table;
  AddPortColumns(table, {{"Input Port", ""},
                         {"Min Rise", "Input Delay"},
                         {"Min Fall", "Input Delay"},
                         {"Max Rise", "Input Delay"},
                         {"Max Fall", "Input Delay"},
                         {"Related Clock", ""},
                         {"Max Fanout", ""},
                         {"Related Pin", ""}});
  for (cdm::Port* port : ports) {
    table.InsertValue("Input Port", port->Name());
    const cdm::Pin* pin = design->FindPin(port->Name());
    if (!pin) continue;
    const float max_fanout = sdc->design_rule_mgr.getMaxFanoutConstraint(port);
    if (max_fanout != 0.0f)
      table.InsertValue("Max Fanout", units.scalar.asString(max_fanout, digits));
    const sta::sdc::InputDelaySet* delays = sdc->getInputDelays(pin);
    if (!delays) continue;
    bool first = true;
    for (const sta::sdc::InputDelay* delay : *delays) {
      if (!first) table.InsertValue("Input Port", std::string(" "));
      first = false;
      PrintOneDelayRow(table, units, delay, "Input Delay", digits);
    }
  }
  table.PrintTable(0, true);
}
