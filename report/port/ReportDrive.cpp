// The drive table of report_port: the drive resistances set on the input
// ports (set_drive) and their minimum capacitance.
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/sta/SdcMgr.h"
#include "port/ReportPortSections.h"

void ReportDrive(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, PortList& ports, int digits) {
  const cdm::LibUnits units = PortUnits(lib);
  ReportTable table;
  AddPortColumns(table, {{"Input Port", ""},
                         {"Rise", "Max Drive"},
                         {"Fall", "Max Drive"},
                         {"Rise", "Min Drive"},
                         {"Fall", "Min Drive"},
                         {"Max", "Resistance"},
                         {"Min", "Resistance"},
                         {"Min Cap", ""},
                         {"Min Fanout", ""},
                         {"Cell Deg", ""}});
  for (cdm::Port* port : ports) {
    table.InsertValue("Input Port", port->Name());
    if (const sta::sdc::InputDrive* drive = sdc->getInputDrive(port)) {
      float value = 0.0f;
      bool exists = false;
      drive->driveResistance(cdm::RiseFall::rise_, cdm::MinMax::max_, value, exists);
      if (exists) table.InsertValue("Rise", units.resistance.asString(value, digits), "Max Drive");
      exists = false;
      drive->driveResistance(cdm::RiseFall::fall_, cdm::MinMax::max_, value, exists);
      if (exists) table.InsertValue("Fall", units.resistance.asString(value, digits), "Max Drive");
      // The minimum side asks first whether a value is set.
      if (drive->hasDriveResistance(cdm::RiseFall::rise_, cdm::MinMax::min_)) {
        drive->driveResistance(cdm::RiseFall::rise_, cdm::MinMax::min_, value, exists);
        table.InsertValue("Rise", units.resistance.asString(value, digits), "Min Drive");
      }
      if (drive->hasDriveResistance(cdm::RiseFall::fall_, cdm::MinMax::min_)) {
        drive->driveResistance(cdm::RiseFall::fall_, cdm::MinMax::min_, value, exists);
        table.InsertValue("Fall", units.resistance.asString(value, digits), "Min Drive");
      }
    }
    const float min_cap = sdc->design_rule_mgr.getMinCapConstraint(port);
    if (min_cap != 0.0f) table.InsertValue("Min Cap", units.capacitance.asString(min_cap, digits));
  }
  table.PrintTable(0, true);
}
