// The external load table of report_port: fan-out points, wire-load models
// and the minimum external loads of every chosen port.
#include <algorithm>
#include <optional>
#include <string>

#include "hostapi/cdm/LibRecords.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/sta/SdcMgr.h"
#include "port/ReportPortSections.h"

namespace {

// The fan-out points at a port: the external fan-out (max, else min), and
// for an input or inout the port itself; 1 when none is set.
float NumberPoints(sta::sdc::SdcMgr* sdc, const cdm::Port* port) {
  const sta::sdc::PortExtLoad* load = sdc->system_interface_mgr.getPortExtCap(port);
  if (!load) return 1.0f;
  std::optional<float> fanout = load->getFanout(cdm::MinMax::max_);
  if (!fanout) fanout = load->getFanout(cdm::MinMax::min_);
  if (!fanout) return 1.0f;
  return IsInputSide(port) ? *fanout + 1.0f : *fanout;
}

// "model:library"
std::string WireLoadText(const cdm::WireLoad* model) {
  return model->name + ":" + (model->library ? model->library->Name() : std::string());
}

// The larger of the minimum rise and fall values; a missing one counts as 0.
float MinLoad(const cdm::RiseFallMinMax& loads) {
  return std::max(loads.Value(cdm::RiseFall::rise_, cdm::MinMax::min_).value_or(0.0f),
                  loads.Value(cdm::RiseFall::fall_, cdm::MinMax::min_).value_or(0.0f));
}

}  // namespace

void ReportPortExtLoad(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, PortList& ports, int digits) {
  const cdm::LibUnits units = PortUnits(lib);
  ReportTable table;
  AddPortColumns(table, {{"Port", ""},
                         {"Number Points", "External"},
                         {"Max Wireload Model", ""},
                         {"Min Wireload Model", ""},
                         {"Min Pin Load", ""},
                         {"Min Wire Load", ""}});
  for (cdm::Port* port : ports) {
    table.InsertValue("Port", port->Name());
    table.InsertValue("Number Points", units.scalar.asString(NumberPoints(sdc, port), 0),
                      "External");
    if (const cdm::WireLoad* model = sdc->getWireLoadModel(port, cdm::MinMax::max_))
      table.InsertValue("Max Wireload Model", WireLoadText(model));
    if (const cdm::WireLoad* model = sdc->getWireLoadModel(port, cdm::MinMax::min_))
      table.InsertValue("Min Wireload Model", WireLoadText(model));
    const sta::sdc::PortExtLoad* load = sdc->getPortExtCap(port);
    if (!load) continue;
    const float pin_load = MinLoad(load->getPinLoads());
    const float wire_load = MinLoad(load->getWireLoads());
    if (pin_load != 0.0f)
      table.InsertValue("Min Pin Load", units.capacitance.asString(pin_load, digits));
    if (wire_load != 0.0f)
      table.InsertValue("Min Wire Load", units.capacitance.asString(wire_load, digits));
  }
  table.PrintTable(0, true);
}
