// report_bus: the bus ports and bus nets of the current design, as the
// database groups them.
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "cmd/TclCmd.h"
#include "format/ReportMgr.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/HostServices.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/msg/Msg.h"

namespace {

// The step follows the texts of the indices, not their values: "9" after
// "10" counts as rising.
float BusStep(const std::string& from, const std::string& to) {
  size_t common = std::min(from.size(), to.size());
  int order = std::memcmp(to.data(), from.data(), common);
  if (order == 0) order = static_cast<int>(to.size()) - static_cast<int>(from.size());
  return order > 0 ? 1.0f : -1.0f;
}

const char* DirectionText(uint8_t direction) {
  if (direction == 0) return "in";
  if (direction == 1) return "out";
  return "inout";
}

void FillBusRow(ReportTable& table, const cdm::Unit& scalar, const std::string& key,
                const std::string& name, int from, int to, int width) {
  std::string from_text = scalar.asString(static_cast<float>(from), 0);
  std::string to_text = scalar.asString(static_cast<float>(to), 0);
  table.InsertValue(key, name, "");
  table.InsertValue("From", from_text, "");
  table.InsertValue("To", to_text, "");
  table.InsertValue("Step", scalar.asString(BusStep(from_text, to_text), 0), "");
  table.InsertValue("Width", scalar.asString(static_cast<float>(width), 0), "");
  table.InsertValue("Type", std::string("vector"), "");
}

}  // namespace

int ReportBusCmd::exec() {
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  if (!design) {
    // Without a design there is nothing to list; say so rather than guess.
    msg::Print_Result("Current Design is not Define");
    return 1;
  }
  cdm::LibertyLib* lib = cdm::DbManager::GetDefaultLiberty();
  const cdm::Unit scalar = lib ? lib->GetUnits().scalar : cdm::Unit();

  const char* stars = "********************************";
  msg::Print_Result("%s", stars);
  msg::Print_Result("Report : bus");
  msg::Print_Result("Design : %s", design->Name().c_str());
  msg::Print_Result("Version: ");
  msg::Print_Result("Date : %s", GetTimeDesign().c_str());
  msg::Print_Result("%s", stars);

  ReportTable ports;
  for (const char* column : {"Bussed Port", "Dir", "From", "To", "Step", "Width", "Type"})
    ports.AddItem(column, std::string(column) == "Bussed Port", "", ReportTable::kLeft, 0);
  std::unique_ptr<cdm::Iterator<cdm::DesignPortBus>> port_buses(design->PortBusIter());
  while (port_buses->HasNext()) {
    cdm::DesignPortBus* bus = port_buses->Next();
    ports.InsertValue("Dir", std::string(DirectionText(bus->GetDirection())), "");
    FillBusRow(ports, scalar, "Bussed Port", bus->Name(), bus->From(), bus->To(), bus->Width());
  }
  ports.PrintTable(0, true);

  ReportTable nets;
  for (const char* column : {"Bussed Net", "From", "To", "Step", "Width", "Type"})
    nets.AddItem(column, std::string(column) == "Bussed Net", "", ReportTable::kLeft, 0);
  std::unique_ptr<cdm::Iterator<cdm::DesignNetBus>> net_buses(design->NetBusIter());
  while (net_buses->HasNext()) {
    cdm::DesignNetBus* bus = net_buses->Next();
    FillBusRow(nets, scalar, "Bussed Net", bus->Name(), bus->From(), bus->To(),
               std::abs(bus->From() - bus->To()) + 1);
  }
  nets.PrintTable(0, true);
  return 0;
}
