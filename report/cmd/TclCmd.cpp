#include "cmd/TclCmd.h"

#include <cstdio>
#include <string>

#include "hostapi/msg/Msg.h"

namespace CmdModule {
// The module tag every report command carries; made once, never freed.
static const CmdModuleInfo* REPORT = new CmdModuleInfo{true, "Report"};
}  // namespace CmdModule

CheckDesignCmd::CheckDesignCmd(const char* name, const char* description, const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("summary",
             "Displays  a  summary of the warning messages instead of one mes- sage per warning.",
             false, ValueType::kFlag, std::any());
  addOptions("no_warnings", "Suppresses warning messages, so only error messages are printed.",
             false, ValueType::kFlag, std::any());
  addOptions("one_level", "Performs checks at only the  current  level  of  hierarchy.", false,
             ValueType::kFlag, std::any());
  addOptions("multiple_designs",
             "Reports  warning  messages  related   to   multiply-instantiated designs.", false,
             ValueType::kFlag, std::any());
  addOptions("no_connection_class", "Suppresses connection class warning messages.", false,
             ValueType::kFlag, std::any());
  addOptions("nosplit", "Prevents  lines  from  being  split when column fields overflow.", false,
             ValueType::kFlag, std::any());
  addOptions("unmapped",
             "Reports warning messages for unmapped cells when the cells are being checked. By "
             "default, these messages are suppressed.",
             false, ValueType::kFlag, std::any());
  addOptions("cells", "Reports the following warning messages for cells.", false, ValueType::kFlag,
             std::any());
  addOptions("ports", " Reports  the  following  warning  messages  for  ports.", false,
             ValueType::kFlag, std::any());
  addOptions("designs", "Reports the following warning messages for designs.", false,
             ValueType::kFlag, std::any());
  addOptions("nets", "Reports the following warning messages for nets.", false, ValueType::kFlag,
             std::any());
  addOptions("loop", "Reports the following warning messages for loops.", false, ValueType::kFlag,
             std::any());
  addOptions("tristates", "Reports the following warning messages  for  tristates.", false,
             ValueType::kFlag, std::any());
  addOptions("html_file_name", "Generates a report for the check_design command in HTML format.",
             false, ValueType::kFlag, std::any());
}

GetFaninPinsCmd::GetFaninPinsCmd(const char* name, const char* description, const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("object_list", "Specifies the 'nets' and 'pin' to show in the report", true,
             ValueType::kStringList, std::any());
  addOptions("level", "Level of logic cone", false, ValueType::kInteger, std::any(1));
  addOptions("verbose", "Display a verbose infomation", false, ValueType::kFlag, std::any());
}

GetFanoutPinsCmd::GetFanoutPinsCmd(const char* name, const char* description, const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("object_list", "Specifies the 'nets' and 'pin' to show in the report", true,
             ValueType::kStringList, std::any());
  addOptions("level", "Level of logic cone", false, ValueType::kInteger, std::any(1));
  addOptions("verbose", "Display a verbose infomation", false, ValueType::kFlag, std::any());
}

ReportAreaCmd::ReportAreaCmd(const char* name, const char* description, const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("nosplit", "Do not split lines when column fields overflow", false, ValueType::kFlag,
             std::any(false));
  addOptions("physical", "Do not split lines when column fields overflow", false, ValueType::kFlag,
             std::any(false));
  addOptions("individual_site_def_util", "Show utilization of each site def", false,
             ValueType::kFlag, std::any(false));
  addOptions("hierarchy", "Show area distribution over hierarchy", false, ValueType::kFlag,
             std::any(false));
  addOptions("verbose", "Display a verbose infomation", false, ValueType::kFlag, std::any(false));
}

ReportAttributeCmd::ReportAttributeCmd(const char* name, const char* description, const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("cell", "list of cell to report attribute", false, ValueType::kFlag, std::any());
  addOptions("net", "list of net to report attribute", false, ValueType::kFlag, std::any());
  addOptions("design", "list of design to report attribute", false, ValueType::kFlag, std::any());
  addOptions("reference", "list of reference to report attribute", false, ValueType::kFlag,
             std::any());
  addOptions("port", "list of port to report attribute", false, ValueType::kFlag, std::any());
  addOptions("pin", "list of pin to report attribute", false, ValueType::kFlag, std::any());
  addOptions("object_list", "list of objects to report attribute", true, ValueType::kStringList,
             std::any());
}

ReportBufferTreeCmd::ReportBufferTreeCmd(const char* name, const char* description,
                                         const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("from", "Do not traverse design hierarchy", false, ValueType::kStringList, std::any());
  addOptions("net", "Produce a verbose report", false, ValueType::kStringList, std::any());
  addOptions("depth", "Produce a report about all gated registers", false, ValueType::kInteger,
             std::any());
  addOptions("connections", "Produce a report about all ungated registers", false, ValueType::kFlag,
             std::any());
  addOptions("hierarchy", "Produce a report about all clock gating elements", false,
             ValueType::kFlag, std::any());
  addOptions("physical", "Report multi-stage clock gating statistics", false, ValueType::kFlag,
             std::any());
  addOptions("nosplit", "Report summary and detailed clock gating structure", false,
             ValueType::kFlag, std::any());
}

ReportBusCmd::ReportBusCmd(const char* name, const char* description, const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("nosplit",
             "Prevents line splitting  and  facilitates  writing  software  to extract  "
             "information from the output report.",
             false, ValueType::kFlag, std::any());
}

ReportCellCmd::ReportCellCmd(const char* name, const char* description, const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("nosplit",
             "Prevents line splitting and facilitates writing software to extract information from "
             "the report output",
             false, ValueType::kFlag, std::any());
  addOptions("connections", "Displays all pins of the cell and the connected nets", false,
             ValueType::kFlag, std::any());
  addOptions("verbose", "Displays verbose connection information", false, ValueType::kFlag,
             std::any());
  addOptions("physical", "Reports the orientation and location of the cell", false,
             ValueType::kFlag, std::any());
  addOptions("only_physical", "Reports information for physical-only cells", false,
             ValueType::kFlag, std::any());
  addOptions("significant_digits",
             "Specifies the number of digits to the right of the decimal point that are reported",
             false, ValueType::kInteger, std::any());
  addOptions("cell_list", "Specifies the cells and instances to show in the report", true,
             ValueType::kStringList, std::any());
}

ReportConstraintCmd::ReportConstraintCmd(const char* name, const char* description,
                                         const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("all_violators", "show all constraint violators", false, ValueType::kFlag, std::any());
  addOptions("verbose", "show verbose format", false, ValueType::kFlag, std::any());
  addOptions("significant_digits", "from 0 to 13; default is 2", false, ValueType::kInteger,
             std::any(2));
  addOptions("max_area", "show only max_area information", false, ValueType::kFlag, std::any());
  addOptions("max_delay", "show only setup and max_delay information", false, ValueType::kFlag,
             std::any());
  addOptions("critical_range", "show only critical_range information", false, ValueType::kFlag,
             std::any());
  addOptions("min_delay", "show only hold and min_delay information", false, ValueType::kFlag,
             std::any());
  addOptions("max_capacitance", "show only max_capacitance information", false, ValueType::kFlag,
             std::any());
  addOptions("min_capacitance", "show only min_capacitance information", false, ValueType::kFlag,
             std::any());
  addOptions("max_transition", "show only max_transition information", false, ValueType::kFlag,
             std::any());
  addOptions("max_fanout", "show only max_fanout information", false, ValueType::kFlag, std::any());
  addOptions("cell_degradation", "show only cell_degradation information", false, ValueType::kFlag,
             std::any());
  addOptions("max_toggle_rate", "show only max_toggle_rate information", false, ValueType::kFlag,
             std::any());
  addOptions("min_porosity", "show only min_porosity information", false, ValueType::kFlag,
             std::any());
  addOptions("max_dynamic_power", "show only max_dynamic_power information", false,
             ValueType::kFlag, std::any());
  addOptions("max_leakage_power", "show only max_leakage_power information", false,
             ValueType::kFlag, std::any());
  addOptions("max_total_power", "show only max_total_power information", false, ValueType::kFlag,
             std::any());
  addOptions("max_net_length", "show only max_net_length information", false, ValueType::kFlag,
             std::any());
  addOptions("min_pulse_width", "show only min_pulse_width information", false, ValueType::kFlag,
             std::any());
  addOptions("min_period", "show only min_period information", false, ValueType::kFlag, std::any());
  addOptions("connection_class", "show only connection_class information", false, ValueType::kFlag,
             std::any());
  addOptions("multiport_net", "show only multiport_net information", false, ValueType::kFlag,
             std::any());
  addOptions("nosplit", "do not split lines when column fields overflow", false, ValueType::kFlag,
             std::any());
  addOptions("ignore_infeasible_paths", "report constraint ignoring infeasible paths", false,
             ValueType::kFlag, std::any());
}

ReportDesignCmd::ReportDesignCmd(const char* name, const char* description, const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("nosplit",
             "Prevents line splitting and facilitates writing software to extract information from "
             "the report output",
             false, ValueType::kFlag, std::any());
  addOptions("physical", "This option is ignored by this tool", false, ValueType::kFlag,
             std::any());
}

ReportHierarchyCmd::ReportHierarchyCmd(const char* name, const char* description, const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("nosplit",
             "Prevents line splitting  and  facilitates  writing  software  to extract  "
             "information from the report output.",
             false, ValueType::kFlag, std::any());
  addOptions("full", "Displays the full hierarchy.", false, ValueType::kFlag, std::any());
  addOptions("noleaf",
             "Indicates  that  the  leaf library cells are to be excluded from the reference "
             "hierarchy report.",
             false, ValueType::kFlag, std::any());
}

ReportLibCmd::ReportLibCmd(const char* name, const char* description, const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("libname", "name of the lib to report", true, ValueType::kString, std::any());
  addOptions("cell_list",
             " Specifies a list of cells about which information is to be reported.              "
             "The default is to report information about all cells.This option applies to both "
             "logic libraries and physical libraries.",
             true, ValueType::kStringList, std::any());
  addOptions("all",
             "Lists all timing-related,  power-related,  electromigration-related, and "
             "FPGA-related information.",
             false, ValueType::kFlag, std::any());
  addOptions("em",
             "Lists all detailed electromigration-related information.This option applies only to "
             "logic libraries",
             false, ValueType::kFlag, std::any());
  addOptions("fpga",
             "Lists all detailed FPGA-related information, such as parts and I/O cell attributes",
             false, ValueType::kFlag, std::any());
  addOptions("full_table",
             "Lists  each  cell's state-table description in tabular, expanded form. This option "
             "applies only to logic libraries.",
             false, ValueType::kFlag, std::any());
  addOptions(
      "k_factors",
      "Lists scaling information for library cells. This option applies only to logic libraries.",
      false, ValueType::kFlag, std::any());
  addOptions(
      "power",
      "Lists all detailed power-related information. This option applies only to logic libraries.",
      false, ValueType::kFlag, std::any());
  addOptions("power_label",
             "Lists the power labels for all power arcs, if specified, in a tabular form. This "
             "option applies only to logic libraries.",
             false, ValueType::kFlag, std::any());
  addOptions("routing_rule",
             "Lists nondefault routing rule information from  physical libraries. This option "
             "applies only to physical libraries.",
             false, ValueType::kFlag, std::any());
  addOptions("rwm", "Lists routing wire model information from physical libraries.", false,
             ValueType::kFlag, std::any());
  addOptions("table",
             "Lists each cell's state-table description in compact form. This option applies only "
             "to logic libraries.",
             false, ValueType::kFlag, std::any());
  addOptions(
      "timing",
      "Lists all detailed timing-related information. This option applies only to logic libraries.",
      false, ValueType::kFlag, std::any());
  addOptions("timing_arcs",
             "Lists all cell timing arcs. This option applies only to logic libraries.", false,
             ValueType::kFlag, std::any());
  addOptions("timing_label",
             "Lists  the timing labels for all timing arcs, if specified, in a tabular form. This "
             "option applies only to logic libraries.",
             false, ValueType::kFlag, std::any());
  addOptions("user_defined_data",
             "Lists detailed information about  the user-defined groups and attributes. This "
             "option applies to both logic libraries and physical libraries.",
             false, ValueType::kFlag, std::any());
  addOptions("vhdl_name",
             "Lists the cells and ports whose database (.db) names are different from their VHDL "
             "names. This option applies only to logic libraries.",
             false, ValueType::kFlag, std::any());
  addOptions("yield",
             "Lists failure rate information for library cells. This option applies only to logic "
             "libraries.",
             false, ValueType::kFlag, std::any());
  addOptions("switch",
             "Lists  pin  switch  function  information  and cell-level steady state current "
             "information. This option applies only to logic libraries.",
             false, ValueType::kFlag, std::any());
  addOptions("pg_pin",
             "Lists power and ground pin information. This option applies only to logic libraries.",
             false, ValueType::kFlag, std::any());
  addOptions("char",
             "Lists  cell  characterization information, such as sensitization and pre-driver "
             "model. This option applies only to logic libraries.",
             false, ValueType::kFlag, std::any());
  addOptions("operating_condition", "Lists all library operating condition information.", false,
             ValueType::kFlag, std::any());
  addOptions("op_cond_name", "Lists operating condition information by name.", false,
             ValueType::kString, std::any());
  addOptions("noise",
             "Lists  all  detailed  noise-related information in the specified library. This "
             "option applies only to logic libraries.",
             false, ValueType::kFlag, std::any());
  addOptions("noise_arcs",
             "Lists all cell noise arcs. This option applies only to logic libraries.", false,
             ValueType::kFlag, std::any());
}

ReportNetCmd::ReportNetCmd(const char* name, const char* description, const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("nosplit",
             "Prevents line splitting and facilitates writing software to extract information from "
             "the report output",
             false, ValueType::kFlag, std::any());
  addOptions("noflat",
             "report the  fanin  and  fanout  for  a net only at the current level of hierarchy",
             false, ValueType::kFlag, std::any());
  addOptions("transition_times",
             "Reports the rise and fall transition times for each net  at  the end of the report",
             false, ValueType::kFlag, std::any());
  addOptions("only_physical", "Reports the preroutes of the physical net", false, ValueType::kFlag,
             std::any());
  addOptions("verbose",
             "Reports  verbose connection information when used with the -connections option",
             false, ValueType::kFlag, std::any());
  addOptions("cell_degradation", "Reports  the  capacitance  on the net", false, ValueType::kFlag,
             std::any());
  addOptions("connections", "Displays information about pins connected to the nets.", false,
             ValueType::kFlag, std::any());
  addOptions("physical", "Reports the total wire length of the net and preroutes of the net", false,
             ValueType::kFlag, std::any());
  addOptions("threshold", "Specifies  to  only  show nets with more fanout than lower", false,
             ValueType::kInteger, std::any());
  addOptions("min", "Shows the minimum conditions", false, ValueType::kFlag, std::any());
  addOptions("significant_digits",
             "Specifies the number of digits to the right of the decimal point to report", false,
             ValueType::kInteger, std::any());
  addOptions("max_toggle_rate", "Shows the maximum toggle rate values for each net", false,
             ValueType::kFlag, std::any());
  addOptions("max_capacitance", "Shows the maximum capacitance values for each net", false,
             ValueType::kFlag, std::any());
  addOptions("scenarios",
             "Reports the timing derate for the specified scenarios in a multi-scenario  design",
             false, ValueType::kFlag, std::any());
  addOptions("net_list", "Specifies to process  only  those  nets  on  the  net_list.", true,
             ValueType::kStringList, std::any());
}

ReportNetFanoutCmd::ReportNetFanoutCmd(const char* name, const char* description, const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("nosplit",
             "Prevents line splitting and facilitates writing software to extract information from "
             "the report output",
             false, ValueType::kFlag, std::any());
  addOptions("high_fanout", "Specifies to show high fanout nets only A high fanout net is a net",
             false, ValueType::kFlag, std::any());
  addOptions("threshold", "Specifies  to  only  show nets with more fanout than lower", false,
             ValueType::kInteger, std::any());
  addOptions("bound", "Specifies  to  only  show nets with fanout less than or equal to upper",
             false, ValueType::kInteger, std::any());
  addOptions("verbose", "Displays verbose connection information", false, ValueType::kFlag,
             std::any());
  addOptions("connections", "Displays information about pins connected to the nets.", false,
             ValueType::kFlag, std::any());
  addOptions("physical", "Displays location information when applicable.", false, ValueType::kFlag,
             std::any());
  addOptions("min", "Shows the minimum conditions", false, ValueType::kFlag, std::any());
  addOptions("tree", "Indicates to treat a buffer tree as transparent.", false, ValueType::kFlag,
             std::any());
  addOptions("depth", "Displays  only  buffer  trees with more levels than level.", false,
             ValueType::kInteger, std::any());
  addOptions("net_list", "Specifies to process  only  those  nets  on  the  net_list.", true,
             ValueType::kStringList, std::any());
}

ReportPortCmd::ReportPortCmd(const char* name, const char* description, const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("drive",
             "Specifies that the port report is to include only  the  sections showing  the  drive "
             " capability  of  input  and inout ports",
             false, ValueType::kFlag, std::any());
  addOptions("verbose",
             "Specifies that the port report is to include all  port  informaSpecifies that the "
             "port report is to include all  port  informa",
             false, ValueType::kFlag, std::any());
  addOptions("physical", "Reports the physical location of the  port", false, ValueType::kFlag,
             std::any());
  addOptions("only_physical", "Reports the physical only ports", false, ValueType::kFlag,
             std::any());
  addOptions("nosplit",
             "Prevents line splitting and facilitates writing software to extract information from "
             "the report output",
             false, ValueType::kFlag, std::any());
  addOptions("significant_digits",
             "Specifies the number of digits to the right of the decimal point to report", false,
             ValueType::kInteger, std::any(2));
  addOptions("port_list",
             "Indicates  that the port report is to include only the specified ports and cannot be "
             "used if the current instance is set",
             true, ValueType::kStringList, std::any());
}

ReportReferenceCmd::ReportReferenceCmd(const char* name, const char* description, const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  addOptions("nosplit",
             "Prevents line splitting and facilitates writing software to extract information from "
             "the report output",
             false, ValueType::kFlag, std::any());
  addOptions("hierarchy",
             "Displays information about references across the hierarchy in the current instance "
             "or the current design",
             false, ValueType::kFlag, std::any());
}

ReportUnitsCmd::ReportUnitsCmd(const char* name, const char* description, const char* third)
    : CommonCmd(name, description, third) {
  module = CmdModule::REPORT;
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
}

// Each destructor only runs the base one.
CheckDesignCmd::~CheckDesignCmd() = default;
GetFaninPinsCmd::~GetFaninPinsCmd() = default;
GetFanoutPinsCmd::~GetFanoutPinsCmd() = default;
ReportAreaCmd::~ReportAreaCmd() = default;
ReportAttributeCmd::~ReportAttributeCmd() = default;
ReportBufferTreeCmd::~ReportBufferTreeCmd() = default;
ReportBusCmd::~ReportBusCmd() = default;
ReportCellCmd::~ReportCellCmd() = default;
ReportConstraintCmd::~ReportConstraintCmd() = default;
ReportDesignCmd::~ReportDesignCmd() = default;
ReportHierarchyCmd::~ReportHierarchyCmd() = default;
ReportLibCmd::~ReportLibCmd() = default;
ReportNetCmd::~ReportNetCmd() = default;
ReportNetFanoutCmd::~ReportNetFanoutCmd() = default;
ReportPortCmd::~ReportPortCmd() = default;
ReportReferenceCmd::~ReportReferenceCmd() = default;
ReportUnitsCmd::~ReportUnitsCmd() = default;

namespace {

struct CommandEntry {
  const char* name;
  const char* description;
};

const CommandEntry kCommands[] = {
    {"check_design", "Checks the current design for consistency."},
    {"get_fanin_pins", "Show the fan-in logic cone of 'Net' or 'Pin'. Stop at a sequential cell"},
    {"get_fanout_pins", "Show the fan-out logic cone of 'Net' or 'Pin'. Stop at a sequential cell"},
    {"report_area", "Usage: report_area    # report area"},
    {"report_attribute", "report attribute values"},
    {"report_buffer_tree",
     " Reports  the  buffer tree and its level information at the given driver pin."},
    {"report_bus",
     "Lists the bused ports and nets in the current instance or in the current design."},
    {"report_cell", "Displays information about cells in the current instance or current design"},
    {"report_constraint", "report constraint"},
    {"report_design", "Displays attributes of the current design"},
    {"report_hierarchy",
     "Displays  the reference hierarchy of the current instance or the current design."},
    {"report_lib",
     "displays information about the  specified  logic library, physical library, or symbol "
     "library"},
    {"report_net", "Displays information about cells in the current instance or current design"},
    {"report_net_fanout",
     "Displays information about cells in the current instance or current design"},
    {"report_port",
     "Displays  information about ports of the current instance or the current design."},
    {"report_reference",
     "This  command  displays information about all references in the current instance or the "
     "current design"},
    {"report_units", "displays the units used by the current design."},
};

}  // namespace

extern "C" void ReportCmdRegister() {
  new CheckDesignCmd(kCommands[0].name, kCommands[0].description, nullptr);
  new GetFaninPinsCmd(kCommands[1].name, kCommands[1].description, nullptr);
  new GetFanoutPinsCmd(kCommands[2].name, kCommands[2].description, nullptr);
  new ReportAreaCmd(kCommands[3].name, kCommands[3].description, nullptr);
  new ReportAttributeCmd(kCommands[4].name, kCommands[4].description, nullptr);
  new ReportBufferTreeCmd(kCommands[5].name, kCommands[5].description, nullptr);
  new ReportBusCmd(kCommands[6].name, kCommands[6].description, nullptr);
  new ReportCellCmd(kCommands[7].name, kCommands[7].description, nullptr);
  new ReportConstraintCmd(kCommands[8].name, kCommands[8].description, nullptr);
  new ReportDesignCmd(kCommands[9].name, kCommands[9].description, nullptr);
  new ReportHierarchyCmd(kCommands[10].name, kCommands[10].description, nullptr);
  new ReportLibCmd(kCommands[11].name, kCommands[11].description, nullptr);
  new ReportNetCmd(kCommands[12].name, kCommands[12].description, nullptr);
  new ReportNetFanoutCmd(kCommands[13].name, kCommands[13].description, nullptr);
  new ReportPortCmd(kCommands[14].name, kCommands[14].description, nullptr);
  new ReportReferenceCmd(kCommands[15].name, kCommands[15].description, nullptr);
  new ReportUnitsCmd(kCommands[16].name, kCommands[16].description, nullptr);
}

extern "C" void ReportCmdHelp() {
  std::printf("%-27s\n", "REPORT:");
  std::fflush(stdout);
  for (const CommandEntry& command : kCommands) {
    std::string left = std::string("    ") + command.name;
    std::printf("%-27s# %s\n", left.c_str(), command.description);
  }
  std::fflush(stdout);
}
