// Small pieces shared by the sections of report_port.
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Port.h"
#include "port/ReportPortSections.h"

cdm::LibUnits PortUnits(const cdm::LibertyLib* lib) {
  return lib ? lib->GetUnits() : cdm::LibUnits();
}

bool IsInputSide(const cdm::Port* port) {
  return (port->direction & ~2) == 0;
}

void AddPortColumns(ReportTable& table,
                    const std::vector<std::pair<const char*, const char*>>& columns) {
  for (size_t i = 0; i < columns.size(); ++i)
    table.AddItem(columns[i].first, i == 0, columns[i].second, ReportTable::kLeft, 0);
}

double PortCapLimit(const cdm::LibPort* port, const cdm::MinMax* minmax) {
  const double limit = port->GetCapacitanceLimits(minmax);
  return limit < 0.0 ? 0.0 : limit;
}
