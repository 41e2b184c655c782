// One row of the basic table of report_port: direction, the external loads
// (max), the design-rule limits and the attribute letters of a port.
#include <memory>
#include <optional>
#include <string>

#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Iterator.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/LogicValue.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/sta/SdcMgr.h"
#include "port/ReportPortSections.h"

namespace {

const char* DirText(const cdm::Port* port) {
  if (port->direction == cdm::kDirOutput) return "out";
  if (port->direction == cdm::kDirInout) return "inout";
  return "in";
}

// Takes `limit` into the running value when it is smaller, or when the
// running value is still 0.0 (nothing taken yet).
void TakeLimit(double& running, double limit) {
  if (running > limit || running == 0.0) running = limit;
}

// The maximum capacitance an input port derives from its driving cells:
// the smallest limit over the four corners; 0.0 when there is none.
double DerivedMaxCap(const sta::sdc::InputDrive* drive) {
  double running = 0.0;
  for (const cdm::MinMax* minmax : {cdm::MinMax::min_, cdm::MinMax::max_}) {
    for (const cdm::RiseFall* edge : {cdm::RiseFall::rise_, cdm::RiseFall::fall_}) {
      const sta::sdc::DriveCell* cell = drive->getDriveCell(edge, minmax);
      if (!cell) continue;
      if (const cdm::LibPort* from = cell->getFromPort()) {
        double limit = PortCapLimit(from, cdm::MinMax::min_);
        if (limit == 0.0) limit = PortCapLimit(from, cdm::MinMax::max_);
        TakeLimit(running, limit);
        continue;
      }
      std::unique_ptr<cdm::Iterator<cdm::LibPort>> ports(cell->getLibCell()->LibPortIter());
      while (ports->HasNext()) {
        const cdm::LibPort* lib_port = ports->Next();
        if (lib_port->direction == cdm::kDirOutput)
          TakeLimit(running, PortCapLimit(lib_port, cdm::MinMax::min_));
      }
    }
  }
  return running;
}

}  // namespace

void ReportOnePort(ReportTable& table, sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, cdm::Port* port,
                   int digits) {
  const cdm::LibUnits units = PortUnits(lib);
  const std::string dir = DirText(port);
  table.InsertValue("Port", port->Name());
  table.InsertValue("Dir", dir);

  if (const sta::sdc::PortExtLoad* load = sdc->getPortExtCap(port)) {
    std::optional<float> pin_load;
    std::optional<float> wire_load;
    for (const cdm::RiseFall* edge : sta::sdc::splitRiseFall(cdm::RiseFallBoth::rise_fall_)) {
      if (std::optional<float> value = load->getPinCap(edge, cdm::MinMax::max_))
        if (!pin_load || *value > *pin_load) pin_load = value;
      if (std::optional<float> value = load->getWireCap(edge, cdm::MinMax::max_))
        if (!wire_load || *value > *wire_load) wire_load = value;
    }
    if (pin_load) table.InsertValue("Pin Load", units.capacitance.asString(*pin_load, digits));
    if (wire_load) table.InsertValue("Wire Load", units.capacitance.asString(*wire_load, digits));
  }

  const float max_trans = sdc->design_rule_mgr.getMaxTranConstraint(port);
  if (max_trans != 0.0f) table.InsertValue("Max Trans", units.time.asString(max_trans, digits));

  const float max_cap = sdc->design_rule_mgr.getMaxCapConstraint(port);
  if (max_cap != 0.0f) {
    table.InsertValue("Max Cap", units.capacitance.asString(max_cap, digits));
  } else if (dir == "in") {
    if (const sta::sdc::InputDrive* drive = sdc->getInputDrive(port)) {
      const double derived = DerivedMaxCap(drive);
      if (derived != 0.0) table.InsertValue("Max Cap", units.capacitance.asString(derived, digits));
    }
  }

  cdm::LogicValue value = cdm::kLogicDontCare;
  bool is_set = false;
  sdc->getLogicValue(port, value, is_set);
  std::string attrs;
  if (is_set && value < cdm::kLogicDontCare) attrs = value == cdm::kLogicZero ? "0" : "1";
  const cdm::Pin* pin = cdm::DbManager::FindPin(port->Name());
  if (pin && sdc->isSourceIdealPin(pin)) attrs += " i";
  table.InsertValue("Attrs", attrs);
}
