#include "cmd/TclCmd.h"

#include <cstdio>

// Usage texts, fixed as the user sees them: one source line per printed
// line, so they are kept out of the formatter's reach.

// clang-format off

void CheckDesignCmd::printUsage() {
  std::fputs("Usage: check_design    #  Checks the current design for consistency.\n"
    "        [-summary]             (Displays  a  summary of the warning messages instead of one mes- sage per warning.)\n"
    "        [-no_warnings]         (Suppresses warning messages, so only error messages are printed.)\n"
    "        [-one_level]           (Performs checks at only the  current  level  of  hierarchy.)\n"
    "        [-multiple_designs]    (Reports  warning  messages  related   to   multiply-instantiated designs.)\n"
    "        [-no_connection_class] (Suppresses connection class warning messages.)\n"
    "        [-nosplit]             (Prevents  lines  from  being  split when column fields overflow.)\n"
    "        [-unmapped]            (Reports warning messages for unmapped cells when the cells are being checked. By default, these messages are suppressed.)\n"
    "        [-cells]               (Reports the following warning messages for cells.)\n"
    "        [-ports]               ( Reports  the  following  warning  messages  for  ports.)\n"
    "        [-designs]             (Reports the following warning messages for designs.)\n"
    "        [-nets]                (Reports the following warning messages for nets.)\n"
    "        [-loop]                (Reports the following warning messages for loops.)\n"
    "        [-tristates]           (Reports the following warning messages  for  tristates.)\n"
    "        [-html_file_name]      (Generates a report for the check_design command in HTML format.)\n",
             stdout);
}

void GetFaninPinsCmd::printUsage() {
  std::fputs("Usage: get_fanin_pins    #  Show the fan-in logic cone of 'Net' or 'Pin'. Stop at a sequential cell\n"
    "        [object_list]          (Specifies the 'nets' and 'pin' to show in the report)\n"
    "        [-level]               (Level of logic cone)\n"
    "        [-verbose]             (Display a verbose infomation)\n",
             stdout);
}

void GetFanoutPinsCmd::printUsage() {
  std::fputs("Usage: get_fanout_pins    #  Show the fan-out logic cone of 'Net' or 'Pin'. Stop at a sequential cell\n"
    "        [object_list]          (Specifies the 'nets' and 'pin' to show in the report)\n"
    "        [-level]               (Level of logic cone)\n"
    "        [-verbose]             (Display a verbose infomation)\n",
             stdout);
}

void ReportAreaCmd::printUsage() {
  std::fputs("Usage: report_area    #  Usage: report_area    # report area\n"
    "        [-nosplit]             (Do not split lines when column fields overflow)\n"
    "        [-physical]            (Do not split lines when column fields overflow)\n"
    "        [-individual_site_def_util]\n"
    "                               (Show utilization of each site def)\n"
    "        [-hierarchy]           (Show area distribution over hierarchy)\n"
    "        [-verbose]             (Display a verbose infomation)\n",
             stdout);
}

void ReportAttributeCmd::printUsage() {
  std::fputs("Usage: report_attribute    #  report attribute values\n"
    "        [-cell]                (list of cell to report attribute)\n"
    "        [-net]                 (list of net to report attribute)\n"
    "        [-design]              (list of design to report attribute)\n"
    "        [-reference]           (list of reference to report attribute)\n"
    "        [-port]                (list of port to report attribute)\n"
    "        [-pin]                 (list of pin to report attribute)\n"
    "        [object_list]          (list of objects to report attribute)\n",
             stdout);
}

void ReportBufferTreeCmd::printUsage() {
  std::fputs("Usage: report_buffer_tree    #   Reports  the  buffer tree and its level information at the given driver pin.\n"
    "        [-from]                (Do not traverse design hierarchy)\n"
    "        [-net]                 (Produce a verbose report)\n"
    "        [-depth]               (Produce a report about all gated registers)\n"
    "        [-connections]         (Produce a report about all ungated registers)\n"
    "        [-hierarchy]           (Produce a report about all clock gating elements)\n"
    "        [-physical]            (Report multi-stage clock gating statistics)\n"
    "        [-nosplit]             (Report summary and detailed clock gating structure)\n",
             stdout);
}

void ReportBusCmd::printUsage() {
  std::fputs("Usage: report_bus    #  Lists the bused ports and nets in the current instance or in the current design.\n"
    "        [-nosplit]             (Prevents line splitting  and  facilitates  writing  software  to extract  information from the output report.)\n",
             stdout);
}

void ReportCellCmd::printUsage() {
  std::fputs("Usage: report_cell    #  Displays information about cells in the current instance or current design\n"
    "        [-nosplit]             (Prevents line splitting and facilitates writing software to extract information from the report output)\n"
    "        [-connections]         (Displays all pins of the cell and the connected nets)\n"
    "        [-verbose]             (Displays verbose connection information)\n"
    "        [-physical]            (Reports the orientation and location of the cell)\n"
    "        [-only_physical]       (Reports information for physical-only cells)\n"
    "        [-significant_digits]  (Specifies the number of digits to the right of the decimal point that are reported)\n"
    "        [cell_list]            (Specifies the cells and instances to show in the report)\n",
             stdout);
}

void ReportConstraintCmd::printUsage() {
  std::fputs("Usage: report_constraint    #  report constraint\n"
    "        [-all_violators]       (show all constraint violators)\n"
    "        [-verbose]             (show verbose format)\n"
    "        [-significant_digits]  (from 0 to 13; default is 2)\n"
    "        [-max_area]            (show only max_area information)\n"
    "        [-max_delay]           (show only setup and max_delay information)\n"
    "        [-critical_range]      (show only critical_range information)\n"
    "        [-min_delay]           (show only hold and min_delay information)\n"
    "        [-max_capacitance]     (show only max_capacitance information)\n"
    "        [-min_capacitance]     (show only min_capacitance information)\n"
    "        [-max_transition]      (show only max_transition information)\n"
    "        [-max_fanout]          (show only max_fanout information)\n"
    "        [-cell_degradation]    (show only cell_degradation information)\n"
    "        [-max_toggle_rate]     (show only max_toggle_rate information)\n"
    "        [-min_porosity]        (show only min_porosity information)\n"
    "        [-max_dynamic_power]   (show only max_dynamic_power information)\n"
    "        [-max_leakage_power]   (show only max_leakage_power information)\n"
    "        [-max_total_power]     (show only max_total_power information)\n"
    "        [-max_net_length]      (show only max_net_length information)\n"
    "        [-min_pulse_width]     (show only min_pulse_width information)\n"
    "        [-min_period]          (show only min_period information)\n"
    "        [-connection_class]    (show only connection_class information)\n"
    "        [-multiport_net]       (show only multiport_net information)\n"
    "        [-nosplit]             (do not split lines when column fields overflow)\n"
    "        [-ignore_infeasible_paths]\n"
    "                               (report constraint ignoring infeasible paths)\n",
             stdout);
}

void ReportDesignCmd::printUsage() {
  std::fputs("Usage: report_design    #  Displays attributes of the current design\n"
    "        [-nosplit]             (Prevents line splitting and facilitates writing software to extract information from the report output)\n"
    "        [-physical]            (This option is ignored by this tool)\n",
             stdout);
}

void ReportHierarchyCmd::printUsage() {
  std::fputs("Usage: report_hierarchy    #  Displays  the reference hierarchy of the current instance or the current design.\n"
    "        [-nosplit]             (Prevents line splitting  and  facilitates  writing  software  to extract  information from the report output.)\n"
    "        [-full]                (Displays the full hierarchy.)\n"
    "        [-noleaf]              (Indicates  that  the  leaf library cells are to be excluded from the reference hierarchy report.)\n",
             stdout);
}

void ReportLibCmd::printUsage() {
  std::fputs("Usage: report_lib    #  displays information about the  specified  logic library, physical library, or symbol library\n"
    "        [libname]              (name of the lib to report)\n"
    "        [cell_list]            ( Specifies a list of cells about which information is to be reported.              The default is to report information about all cells.This option applies to both logic libraries and physical libraries.)\n"
    "        [-all]                 (Lists all timing-related,  power-related,  electromigration-related, and FPGA-related information.)\n"
    "        [-em]                  (Lists all detailed electromigration-related information.This option applies only to logic libraries)\n"
    "        [-fpga]                (Lists all detailed FPGA-related information, such as parts and I/O cell attributes)\n"
    "        [-full_table]          (Lists  each  cell's state-table description in tabular, expanded form. This option applies only to logic libraries.)\n"
    "        [-k_factors]           (Lists scaling information for library cells. This option applies only to logic libraries.)\n"
    "        [-power]               (Lists all detailed power-related information. This option applies only to logic libraries.)\n"
    "        [-power_label]         (Lists the power labels for all power arcs, if specified, in a tabular form. This option applies only to logic libraries.)\n"
    "        [-routing_rule]        (Lists nondefault routing rule information from  physical libraries. This option applies only to physical libraries.)\n"
    "        [-rwm]                 (Lists routing wire model information from physical libraries.)\n"
    "        [-table]               (Lists each cell's state-table description in compact form. This option applies only to logic libraries.)\n"
    "        [-timing]              (Lists all detailed timing-related information. This option applies only to logic libraries.)\n"
    "        [-timing_arcs]         (Lists all cell timing arcs. This option applies only to logic libraries.)\n"
    "        [-timing_label]        (Lists  the timing labels for all timing arcs, if specified, in a tabular form. This option applies only to logic libraries.)\n"
    "        [-user_defined_data]   (Lists detailed information about  the user-defined groups and attributes. This option applies to both logic libraries and physical libraries.)\n"
    "        [-vhdl_name]           (Lists the cells and ports whose database (.db) names are different from their VHDL names. This option applies only to logic libraries.)\n"
    "        [-yield]               (Lists failure rate information for library cells. This option applies only to logic libraries.)\n"
    "        [-switch]              (Lists  pin  switch  function  information  and cell-level steady state current information. This option applies only to logic libraries.)\n"
    "        [-pg_pin]              (Lists power and ground pin information. This option applies only to logic libraries.)\n"
    "        [-char]                (Lists  cell  characterization information, such as sensitization and pre-driver model. This option applies only to logic libraries.)\n"
    "        [-operating_condition] (Lists all library operating condition information.)\n"
    "        [-op_cond_name]        (Lists operating condition information by name.)\n"
    "        [-noise]               (Lists  all  detailed  noise-related information in the specified library. This option applies only to logic libraries.)\n"
    "        [-noise_arcs]          (Lists all cell noise arcs. This option applies only to logic libraries.)\n",
             stdout);
}

void ReportNetCmd::printUsage() {
  std::fputs("Usage: report_net    #  Displays information about cells in the current instance or current design\n"
    "        [-nosplit]             (Prevents line splitting and facilitates writing software to extract information from the report output)\n"
    "        [-noflat]              (report the  fanin  and  fanout  for  a net only at the current level of hierarchy)\n"
    "        [-transition_times]    (Reports the rise and fall transition times for each net  at  the end of the report)\n"
    "        [-only_physical]       (Reports the preroutes of the physical net)\n"
    "        [-verbose]             (Reports  verbose connection information when used with the -connections option)\n"
    "        [-cell_degradation]    (Reports  the  capacitance  on the net)\n"
    "        [-connections]         (Displays information about pins connected to the nets.)\n"
    "        [-physical]            (Reports the total wire length of the net and preroutes of the net)\n"
    "        [-threshold]           (Specifies  to  only  show nets with more fanout than lower)\n"
    "        [-min]                 (Shows the minimum conditions)\n"
    "        [-significant_digits]  (Specifies the number of digits to the right of the decimal point to report)\n"
    "        [-max_toggle_rate]     (Shows the maximum toggle rate values for each net)\n"
    "        [-max_capacitance]     (Shows the maximum capacitance values for each net)\n"
    "        [-scenarios]           (Reports the timing derate for the specified scenarios in a multi-scenario  design)\n"
    "        [net_list]             (Specifies to process  only  those  nets  on  the  net_list.)\n",
             stdout);
}

void ReportNetFanoutCmd::printUsage() {
  std::fputs("Usage: report_net_fanout    #  Displays information about cells in the current instance or current design\n"
    "        [-nosplit]             (Prevents line splitting and facilitates writing software to extract information from the report output)\n"
    "        [-high_fanout]         (Specifies to show high fanout nets only A high fanout net is a net)\n"
    "        [-threshold]           (Specifies  to  only  show nets with more fanout than lower)\n"
    "        [-bound]               (Specifies  to  only  show nets with fanout less than or equal to upper)\n"
    "        [-verbose]             (Displays verbose connection information)\n"
    "        [-connections]         (Displays information about pins connected to the nets.)\n"
    "        [-physical]            (Displays location information when applicable.)\n"
    "        [-min]                 (Shows the minimum conditions)\n"
    "        [-tree]                (Indicates to treat a buffer tree as transparent.)\n"
    "        [-depth]               (Displays  only  buffer  trees with more levels than level.)\n"
    "        [net_list]             (Specifies to process  only  those  nets  on  the  net_list.)\n",
             stdout);
}

void ReportPortCmd::printUsage() {
  std::fputs("Usage: report_port    #  Displays  information about ports of the current instance or the current design.\n"
    "        [-drive]               (Specifies that the port report is to include only  the  sections showing  the  drive  capability  of  input  and inout ports)\n"
    "        [-verbose]             (Specifies that the port report is to include all  port  informaSpecifies that the port report is to include all  port  informa)\n"
    "        [-physical]            (Reports the physical location of the  port)\n"
    "        [-only_physical]       (Reports the physical only ports)\n"
    "        [-nosplit]             (Prevents line splitting and facilitates writing software to extract information from the report output)\n"
    "        [-significant_digits]  (Specifies the number of digits to the right of the decimal point to report)\n"
    "        [port_list]            (Indicates  that the port report is to include only the specified ports and cannot be used if the current instance is set)\n",
             stdout);
}

void ReportReferenceCmd::printUsage() {
  std::fputs("Usage: report_reference    #  This  command  displays information about all references in the current instance or the current design\n"
    "        [-nosplit]             (Prevents line splitting and facilitates writing software to extract information from the report output)\n"
    "        [-hierarchy]           (Displays information about references across the hierarchy in the current instance or the current design)\n",
             stdout);
}

void ReportUnitsCmd::printUsage() {
  std::fputs("Usage: report_units    #  displays the units used by the current design.\n",
             stdout);
}
// clang-format on
