// The output delay table of report_port: the delays set on each output
// port, sorted by clock, reference pin and clock edge, and the port's
// fanout load.
#include <algorithm>
#include <string>
#include <vector>

#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/sta/SdcMgr.h"
#include "port/ReportPortSections.h"

namespace {

const std::string& ClockName(const sta::sdc::PortDelay* delay) {
  const sta::sdc::Clock* clock = delay->getClock();
  return clock ? clock->Name() : cdm::Object::EmptyName();
}

const cdm::RiseFall* EdgeSense(const sta::sdc::PortDelay* delay) {
  const sta::sdc::ClockEdge* edge = delay->getClockEdge();
  return edge ? edge->getRiseFall() : cdm::RiseFall::rise_;
}

// Clock name; for one clock the delay with a reference pin first, by the
// pins' names; then the rising clock edge first; then the records' places.
bool OutputDelayLess(const sta::sdc::OutputDelay* a, const sta::sdc::OutputDelay* b) {
  if (a->getClock() != b->getClock()) return ClockName(a) < ClockName(b);
  const cdm::Pin* pin_a = a->getRefPin();
  const cdm::Pin* pin_b = b->getRefPin();
  if (pin_a != pin_b && pin_a && pin_b) return pin_a->GetFullName() < pin_b->GetFullName();
  if (!pin_a != !pin_b) return pin_a != nullptr;
  if (EdgeSense(a) != EdgeSense(b)) return EdgeSense(a) == cdm::RiseFall::rise_;
  return std::less<const sta::sdc::OutputDelay*>()(a, b);
}

}  // namespace

void ReportOutputDelay(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, cdm::Design* design,
                       PortList& ports, int digits) {
  const cdm::LibUnits units = PortUnits(lib);
  ReportTable table;
  AddPortColumns(table, {{"Output Port", ""},
                         {"Min Rise", "Output Delay"},
                         {"Min Fall", "Output Delay"},
                         {"Max Rise", "Output Delay"},
                         {"Max Fall", "Output Delay"},
                         {"Related Clock", ""},
                         {"Fanout Load", ""},
                         {"Related Pin", ""}});
  for (cdm::Port* port : ports) {
    table.InsertValue("Output Port", port->Name());
    if (port->HasAttribute(cdm::AttrId::kFanoutLoad))
      table.InsertValue(
          "Fanout Load",
          units.scalar.asString(port->GetFloatAttribute(cdm::AttrId::kFanoutLoad), digits));
    const cdm::Pin* pin = design->FindPin(port->Name());
    const sta::sdc::OutputDelaySet* set = pin ? sdc->getOutputDelays(pin) : nullptr;
    if (!set) continue;
    std::vector<const sta::sdc::OutputDelay*> delays(set->begin(), set->end());
    std::sort(delays.begin(), delays.end(), OutputDelayLess);
    for (size_t i = 0; i < delays.size(); ++i) {
      if (i > 0) table.InsertValue("Output Port", std::string(" "));
      PrintOneDelayRow(table, units, delays[i], "Output Delay", digits);
    }
  }
  table.PrintTable(0, true);
}
