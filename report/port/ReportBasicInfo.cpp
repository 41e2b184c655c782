// The banner, the legend of attribute letters and the basic table of
// report_port: one row per port, inputs first.
#include <string>

#include "cmd/TclCmd.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/msg/Msg.h"
#include "port/ReportPortSections.h"

bool ReportBasicInfo(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* lib, cdm::Design* design,
                     ReportPortCmd* cmd, PortList& inputs, PortList& outputs) {
  ReportTable table;
  msg::Print_Result("****************************************");
  msg::Print_Result("*Report : port");
  if (cmd->getNosplit()) msg::Print_Result("*         -nosplit");
  if (cmd->getDrive()) msg::Print_Result("*         -drive");
  if (cmd->getVerbose()) msg::Print_Result("*         -verbose");
  if (cmd->getPhysical()) msg::Print_Result("*         -physical");
  if (cmd->getOnlyPhysical()) msg::Print_Result("*         -only_physical");
  // The option has a default, which the accessor reads when the option is
  // not given; the line is for a value given on the command line.
  if (cmd->getOptionCount("significant_digits") > 0)
    msg::Print_Result("*         -significant_digits %d", cmd->getSignificantDigits());
  msg::Print_Result("*Design : %s", design->Name().c_str());
  msg::Print_Result("*Version: ");
  msg::Print_Result("*Date   : %s", table.GetData().c_str());
  msg::Print_Result("****************************************");
  msg::InsertEmptyLine();
  msg::Print_Result("Attributes:");
  msg::Print_Result("    i - ideal_network");
  msg::Print_Result("    1 - is set to logic one");
  msg::Print_Result("    0 - is set to logic zero");
  msg::Print_Result("    e - has an equal port");
  msg::Print_Result("    o - has an opposite port");

  AddPortColumns(table, {{"Port", ""},
                         {"Dir", ""},
                         {"Pin Load", ""},
                         {"Wire Load", ""},
                         {"Max Trans", ""},
                         {"Max Cap", ""},
                         {"Connection Class", ""},
                         {"Attrs", ""}});
  const int digits = cmd->getSignificantDigits();
  for (cdm::Port* port : inputs) ReportOnePort(table, sdc, lib, port, digits);
  for (cdm::Port* port : outputs) ReportOnePort(table, sdc, lib, port, digits);
  table.InsertSeparator('-');
  table.PrintTable(0, true);
  return true;
}
