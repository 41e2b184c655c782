// The input transition table of report_port: the transitions set on the
// input ports (set_input_transition), max then min.
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/sta/SdcMgr.h"
#include "port/ReportPortSections.h"

void ReportInputTransition(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, PortList& inputs,
                           PortList& /*outputs: no row of their own*/, int digits) {
  const cdm::LibUnits units = PortUnits(lib);
  ReportTable table;
  AddPortColumns(table, {{"Input Port", ""},
                         {"Rise", "Max Tran"},
                         {"Fall", "Max Tran"},
                         {"Rise", "Min Tran"},
                         {"Fall", "Min Tran"}});
  for (cdm::Port* port : inputs) {
    table.InsertValue("Input Port", port->Name());
    const sta::sdc::InputDrive* drive = sdc->getInputDrive(port);
    if (!drive) continue;
    const struct {
      const cdm::RiseFall* edge;
      const cdm::MinMax* minmax;
      const char* column;
      const char* group;
    } cells[] = {{cdm::RiseFall::rise_, cdm::MinMax::max_, "Rise", "Max Tran"},
                 {cdm::RiseFall::fall_, cdm::MinMax::max_, "Fall", "Max Tran"},
                 {cdm::RiseFall::rise_, cdm::MinMax::min_, "Rise", "Min Tran"},
                 {cdm::RiseFall::fall_, cdm::MinMax::min_, "Fall", "Min Tran"}};
    for (const auto& cell : cells) {
      float value = 0.0f;
      bool exists = false;
      drive->getSlew(cell.edge, cell.minmax, value, exists);
      if (exists) table.InsertValue(cell.column, units.time.asString(value, digits), cell.group);
    }
  }
  table.PrintTable(0, true);
}
