#include "cmd/TclCmd.h"

#include <boost/any.hpp>

// Accessors: a flag reads as given or not; a valued option reads its value
// when it has one, else the fallback (or an empty value).

namespace {

template <class T>
std::optional<T> ValueOf(CommonCmd& cmd, const char* name) {
  boost::any value;
  if (!cmd.getOptionValue(name, value)) return std::nullopt;
  return boost::any_cast<T>(value);
}

}  // namespace

bool CheckDesignCmd::getSummary() {
  return getOptionValue("summary");
}
std::optional<bool> CheckDesignCmd::getSummaryOptional() {
  return getOptionValue("summary");
}
bool CheckDesignCmd::getNoWarnings() {
  return getOptionValue("no_warnings");
}
std::optional<bool> CheckDesignCmd::getNoWarningsOptional() {
  return getOptionValue("no_warnings");
}
bool CheckDesignCmd::getOneLevel() {
  return getOptionValue("one_level");
}
std::optional<bool> CheckDesignCmd::getOneLevelOptional() {
  return getOptionValue("one_level");
}
bool CheckDesignCmd::getMultipleDesigns() {
  return getOptionValue("multiple_designs");
}
std::optional<bool> CheckDesignCmd::getMultipleDesignsOptional() {
  return getOptionValue("multiple_designs");
}
bool CheckDesignCmd::getNoConnectionClass() {
  return getOptionValue("no_connection_class");
}
std::optional<bool> CheckDesignCmd::getNoConnectionClassOptional() {
  return getOptionValue("no_connection_class");
}
bool CheckDesignCmd::getNosplit() {
  return getOptionValue("nosplit");
}
std::optional<bool> CheckDesignCmd::getNosplitOptional() {
  return getOptionValue("nosplit");
}
bool CheckDesignCmd::getUnmapped() {
  return getOptionValue("unmapped");
}
std::optional<bool> CheckDesignCmd::getUnmappedOptional() {
  return getOptionValue("unmapped");
}
bool CheckDesignCmd::getCells() {
  return getOptionValue("cells");
}
std::optional<bool> CheckDesignCmd::getCellsOptional() {
  return getOptionValue("cells");
}
bool CheckDesignCmd::getPorts() {
  return getOptionValue("ports");
}
std::optional<bool> CheckDesignCmd::getPortsOptional() {
  return getOptionValue("ports");
}
bool CheckDesignCmd::getDesigns() {
  return getOptionValue("designs");
}
std::optional<bool> CheckDesignCmd::getDesignsOptional() {
  return getOptionValue("designs");
}
bool CheckDesignCmd::getNets() {
  return getOptionValue("nets");
}
std::optional<bool> CheckDesignCmd::getNetsOptional() {
  return getOptionValue("nets");
}
bool CheckDesignCmd::getLoop() {
  return getOptionValue("loop");
}
std::optional<bool> CheckDesignCmd::getLoopOptional() {
  return getOptionValue("loop");
}
bool CheckDesignCmd::getTristates() {
  return getOptionValue("tristates");
}
std::optional<bool> CheckDesignCmd::getTristatesOptional() {
  return getOptionValue("tristates");
}
bool CheckDesignCmd::getHtmlFileName() {
  return getOptionValue("html_file_name");
}
std::optional<bool> CheckDesignCmd::getHtmlFileNameOptional() {
  return getOptionValue("html_file_name");
}

std::vector<std::string> GetFaninPinsCmd::getObjectList() {
  return ValueOf<std::vector<std::string>>(*this, "object_list")
      .value_or(std::vector<std::string>());
}
std::optional<std::vector<std::string>> GetFaninPinsCmd::getObjectListOptional() {
  return ValueOf<std::vector<std::string>>(*this, "object_list");
}
int GetFaninPinsCmd::getLevel() {
  return ValueOf<int>(*this, "level").value_or(1);
}
std::optional<int> GetFaninPinsCmd::getLevelOptional() {
  return ValueOf<int>(*this, "level");
}
bool GetFaninPinsCmd::getVerbose() {
  return getOptionValue("verbose");
}
std::optional<bool> GetFaninPinsCmd::getVerboseOptional() {
  return getOptionValue("verbose");
}

std::vector<std::string> GetFanoutPinsCmd::getObjectList() {
  return ValueOf<std::vector<std::string>>(*this, "object_list")
      .value_or(std::vector<std::string>());
}
std::optional<std::vector<std::string>> GetFanoutPinsCmd::getObjectListOptional() {
  return ValueOf<std::vector<std::string>>(*this, "object_list");
}
int GetFanoutPinsCmd::getLevel() {
  return ValueOf<int>(*this, "level").value_or(1);
}
std::optional<int> GetFanoutPinsCmd::getLevelOptional() {
  return ValueOf<int>(*this, "level");
}
bool GetFanoutPinsCmd::getVerbose() {
  return getOptionValue("verbose");
}
std::optional<bool> GetFanoutPinsCmd::getVerboseOptional() {
  return getOptionValue("verbose");
}

bool ReportAreaCmd::getNosplit() {
  return getOptionValue("nosplit");
}
std::optional<bool> ReportAreaCmd::getNosplitOptional() {
  return getOptionValue("nosplit");
}
bool ReportAreaCmd::getPhysical() {
  return getOptionValue("physical");
}
std::optional<bool> ReportAreaCmd::getPhysicalOptional() {
  return getOptionValue("physical");
}
bool ReportAreaCmd::getIndividualSiteDefUtil() {
  return getOptionValue("individual_site_def_util");
}
std::optional<bool> ReportAreaCmd::getIndividualSiteDefUtilOptional() {
  return getOptionValue("individual_site_def_util");
}
bool ReportAreaCmd::getHierarchy() {
  return getOptionValue("hierarchy");
}
std::optional<bool> ReportAreaCmd::getHierarchyOptional() {
  return getOptionValue("hierarchy");
}
bool ReportAreaCmd::getVerbose() {
  return getOptionValue("verbose");
}
std::optional<bool> ReportAreaCmd::getVerboseOptional() {
  return getOptionValue("verbose");
}

bool ReportAttributeCmd::getCell() {
  return getOptionValue("cell");
}
std::optional<bool> ReportAttributeCmd::getCellOptional() {
  return getOptionValue("cell");
}
bool ReportAttributeCmd::getNet() {
  return getOptionValue("net");
}
std::optional<bool> ReportAttributeCmd::getNetOptional() {
  return getOptionValue("net");
}
bool ReportAttributeCmd::getDesign() {
  return getOptionValue("design");
}
std::optional<bool> ReportAttributeCmd::getDesignOptional() {
  return getOptionValue("design");
}
bool ReportAttributeCmd::getReference() {
  return getOptionValue("reference");
}
std::optional<bool> ReportAttributeCmd::getReferenceOptional() {
  return getOptionValue("reference");
}
bool ReportAttributeCmd::getPort() {
  return getOptionValue("port");
}
std::optional<bool> ReportAttributeCmd::getPortOptional() {
  return getOptionValue("port");
}
bool ReportAttributeCmd::getPin() {
  return getOptionValue("pin");
}
std::optional<bool> ReportAttributeCmd::getPinOptional() {
  return getOptionValue("pin");
}
std::vector<std::string> ReportAttributeCmd::getObjectList() {
  return ValueOf<std::vector<std::string>>(*this, "object_list")
      .value_or(std::vector<std::string>());
}
std::optional<std::vector<std::string>> ReportAttributeCmd::getObjectListOptional() {
  return ValueOf<std::vector<std::string>>(*this, "object_list");
}

std::vector<std::string> ReportBufferTreeCmd::getFrom() {
  return ValueOf<std::vector<std::string>>(*this, "from").value_or(std::vector<std::string>());
}
std::optional<std::vector<std::string>> ReportBufferTreeCmd::getFromOptional() {
  return ValueOf<std::vector<std::string>>(*this, "from");
}
std::vector<std::string> ReportBufferTreeCmd::getNet() {
  return ValueOf<std::vector<std::string>>(*this, "net").value_or(std::vector<std::string>());
}
std::optional<std::vector<std::string>> ReportBufferTreeCmd::getNetOptional() {
  return ValueOf<std::vector<std::string>>(*this, "net");
}
int ReportBufferTreeCmd::getDepth() {
  return ValueOf<int>(*this, "depth").value_or(0);
}
std::optional<int> ReportBufferTreeCmd::getDepthOptional() {
  return ValueOf<int>(*this, "depth");
}
bool ReportBufferTreeCmd::getConnections() {
  return getOptionValue("connections");
}
std::optional<bool> ReportBufferTreeCmd::getConnectionsOptional() {
  return getOptionValue("connections");
}
bool ReportBufferTreeCmd::getHierarchy() {
  return getOptionValue("hierarchy");
}
std::optional<bool> ReportBufferTreeCmd::getHierarchyOptional() {
  return getOptionValue("hierarchy");
}
bool ReportBufferTreeCmd::getPhysical() {
  return getOptionValue("physical");
}
std::optional<bool> ReportBufferTreeCmd::getPhysicalOptional() {
  return getOptionValue("physical");
}
bool ReportBufferTreeCmd::getNosplit() {
  return getOptionValue("nosplit");
}
std::optional<bool> ReportBufferTreeCmd::getNosplitOptional() {
  return getOptionValue("nosplit");
}

bool ReportBusCmd::getNosplit() {
  return getOptionValue("nosplit");
}
std::optional<bool> ReportBusCmd::getNosplitOptional() {
  return getOptionValue("nosplit");
}

bool ReportCellCmd::getNosplit() {
  return getOptionValue("nosplit");
}
std::optional<bool> ReportCellCmd::getNosplitOptional() {
  return getOptionValue("nosplit");
}
bool ReportCellCmd::getConnections() {
  return getOptionValue("connections");
}
std::optional<bool> ReportCellCmd::getConnectionsOptional() {
  return getOptionValue("connections");
}
bool ReportCellCmd::getVerbose() {
  return getOptionValue("verbose");
}
std::optional<bool> ReportCellCmd::getVerboseOptional() {
  return getOptionValue("verbose");
}
bool ReportCellCmd::getPhysical() {
  return getOptionValue("physical");
}
std::optional<bool> ReportCellCmd::getPhysicalOptional() {
  return getOptionValue("physical");
}
bool ReportCellCmd::getOnlyPhysical() {
  return getOptionValue("only_physical");
}
std::optional<bool> ReportCellCmd::getOnlyPhysicalOptional() {
  return getOptionValue("only_physical");
}
int ReportCellCmd::getSignificantDigits() {
  return ValueOf<int>(*this, "significant_digits").value_or(0);
}
std::optional<int> ReportCellCmd::getSignificantDigitsOptional() {
  return ValueOf<int>(*this, "significant_digits");
}
std::vector<std::string> ReportCellCmd::getCellList() {
  return ValueOf<std::vector<std::string>>(*this, "cell_list").value_or(std::vector<std::string>());
}
std::optional<std::vector<std::string>> ReportCellCmd::getCellListOptional() {
  return ValueOf<std::vector<std::string>>(*this, "cell_list");
}

bool ReportConstraintCmd::getAllViolators() {
  return getOptionValue("all_violators");
}
std::optional<bool> ReportConstraintCmd::getAllViolatorsOptional() {
  return getOptionValue("all_violators");
}
bool ReportConstraintCmd::getVerbose() {
  return getOptionValue("verbose");
}
std::optional<bool> ReportConstraintCmd::getVerboseOptional() {
  return getOptionValue("verbose");
}
int ReportConstraintCmd::getSignificantDigits() {
  return ValueOf<int>(*this, "significant_digits").value_or(2);
}
std::optional<int> ReportConstraintCmd::getSignificantDigitsOptional() {
  return ValueOf<int>(*this, "significant_digits");
}
bool ReportConstraintCmd::getMaxArea() {
  return getOptionValue("max_area");
}
std::optional<bool> ReportConstraintCmd::getMaxAreaOptional() {
  return getOptionValue("max_area");
}
bool ReportConstraintCmd::getMaxDelay() {
  return getOptionValue("max_delay");
}
std::optional<bool> ReportConstraintCmd::getMaxDelayOptional() {
  return getOptionValue("max_delay");
}
bool ReportConstraintCmd::getCriticalRange() {
  return getOptionValue("critical_range");
}
std::optional<bool> ReportConstraintCmd::getCriticalRangeOptional() {
  return getOptionValue("critical_range");
}
bool ReportConstraintCmd::getMinDelay() {
  return getOptionValue("min_delay");
}
std::optional<bool> ReportConstraintCmd::getMinDelayOptional() {
  return getOptionValue("min_delay");
}
bool ReportConstraintCmd::getMaxCapacitance() {
  return getOptionValue("max_capacitance");
}
std::optional<bool> ReportConstraintCmd::getMaxCapacitanceOptional() {
  return getOptionValue("max_capacitance");
}
bool ReportConstraintCmd::getMinCapacitance() {
  return getOptionValue("min_capacitance");
}
std::optional<bool> ReportConstraintCmd::getMinCapacitanceOptional() {
  return getOptionValue("min_capacitance");
}
bool ReportConstraintCmd::getMaxTransition() {
  return getOptionValue("max_transition");
}
std::optional<bool> ReportConstraintCmd::getMaxTransitionOptional() {
  return getOptionValue("max_transition");
}
bool ReportConstraintCmd::getMaxFanout() {
  return getOptionValue("max_fanout");
}
std::optional<bool> ReportConstraintCmd::getMaxFanoutOptional() {
  return getOptionValue("max_fanout");
}
bool ReportConstraintCmd::getCellDegradation() {
  return getOptionValue("cell_degradation");
}
std::optional<bool> ReportConstraintCmd::getCellDegradationOptional() {
  return getOptionValue("cell_degradation");
}
bool ReportConstraintCmd::getMaxToggleRate() {
  return getOptionValue("max_toggle_rate");
}
std::optional<bool> ReportConstraintCmd::getMaxToggleRateOptional() {
  return getOptionValue("max_toggle_rate");
}
bool ReportConstraintCmd::getMinPorosity() {
  return getOptionValue("min_porosity");
}
std::optional<bool> ReportConstraintCmd::getMinPorosityOptional() {
  return getOptionValue("min_porosity");
}
bool ReportConstraintCmd::getMaxDynamicPower() {
  return getOptionValue("max_dynamic_power");
}
std::optional<bool> ReportConstraintCmd::getMaxDynamicPowerOptional() {
  return getOptionValue("max_dynamic_power");
}
bool ReportConstraintCmd::getMaxLeakagePower() {
  return getOptionValue("max_leakage_power");
}
std::optional<bool> ReportConstraintCmd::getMaxLeakagePowerOptional() {
  return getOptionValue("max_leakage_power");
}
bool ReportConstraintCmd::getMaxTotalPower() {
  return getOptionValue("max_total_power");
}
std::optional<bool> ReportConstraintCmd::getMaxTotalPowerOptional() {
  return getOptionValue("max_total_power");
}
bool ReportConstraintCmd::getMaxNetLength() {
  return getOptionValue("max_net_length");
}
std::optional<bool> ReportConstraintCmd::getMaxNetLengthOptional() {
  return getOptionValue("max_net_length");
}
bool ReportConstraintCmd::getMinPulseWidth() {
  return getOptionValue("min_pulse_width");
}
std::optional<bool> ReportConstraintCmd::getMinPulseWidthOptional() {
  return getOptionValue("min_pulse_width");
}
bool ReportConstraintCmd::getMinPeriod() {
  return getOptionValue("min_period");
}
std::optional<bool> ReportConstraintCmd::getMinPeriodOptional() {
  return getOptionValue("min_period");
}
bool ReportConstraintCmd::getConnectionClass() {
  return getOptionValue("connection_class");
}
std::optional<bool> ReportConstraintCmd::getConnectionClassOptional() {
  return getOptionValue("connection_class");
}
bool ReportConstraintCmd::getMultiportNet() {
  return getOptionValue("multiport_net");
}
std::optional<bool> ReportConstraintCmd::getMultiportNetOptional() {
  return getOptionValue("multiport_net");
}
bool ReportConstraintCmd::getNosplit() {
  return getOptionValue("nosplit");
}
std::optional<bool> ReportConstraintCmd::getNosplitOptional() {
  return getOptionValue("nosplit");
}
bool ReportConstraintCmd::getIgnoreInfeasiblePaths() {
  return getOptionValue("ignore_infeasible_paths");
}
std::optional<bool> ReportConstraintCmd::getIgnoreInfeasiblePathsOptional() {
  return getOptionValue("ignore_infeasible_paths");
}

bool ReportDesignCmd::getNosplit() {
  return getOptionValue("nosplit");
}
std::optional<bool> ReportDesignCmd::getNosplitOptional() {
  return getOptionValue("nosplit");
}
bool ReportDesignCmd::getPhysical() {
  return getOptionValue("physical");
}
std::optional<bool> ReportDesignCmd::getPhysicalOptional() {
  return getOptionValue("physical");
}

bool ReportHierarchyCmd::getNosplit() {
  return getOptionValue("nosplit");
}
std::optional<bool> ReportHierarchyCmd::getNosplitOptional() {
  return getOptionValue("nosplit");
}
bool ReportHierarchyCmd::getFull() {
  return getOptionValue("full");
}
std::optional<bool> ReportHierarchyCmd::getFullOptional() {
  return getOptionValue("full");
}
bool ReportHierarchyCmd::getNoleaf() {
  return getOptionValue("noleaf");
}
std::optional<bool> ReportHierarchyCmd::getNoleafOptional() {
  return getOptionValue("noleaf");
}

std::string ReportLibCmd::getLibname() {
  return ValueOf<std::string>(*this, "libname").value_or(std::string());
}
std::optional<std::string> ReportLibCmd::getLibnameOptional() {
  return ValueOf<std::string>(*this, "libname");
}
std::vector<std::string> ReportLibCmd::getCellList() {
  return ValueOf<std::vector<std::string>>(*this, "cell_list").value_or(std::vector<std::string>());
}
std::optional<std::vector<std::string>> ReportLibCmd::getCellListOptional() {
  return ValueOf<std::vector<std::string>>(*this, "cell_list");
}
bool ReportLibCmd::getAll() {
  return getOptionValue("all");
}
std::optional<bool> ReportLibCmd::getAllOptional() {
  return getOptionValue("all");
}
bool ReportLibCmd::getEm() {
  return getOptionValue("em");
}
std::optional<bool> ReportLibCmd::getEmOptional() {
  return getOptionValue("em");
}
bool ReportLibCmd::getFpga() {
  return getOptionValue("fpga");
}
std::optional<bool> ReportLibCmd::getFpgaOptional() {
  return getOptionValue("fpga");
}
bool ReportLibCmd::getFullTable() {
  return getOptionValue("full_table");
}
std::optional<bool> ReportLibCmd::getFullTableOptional() {
  return getOptionValue("full_table");
}
bool ReportLibCmd::getKFactors() {
  return getOptionValue("k_factors");
}
std::optional<bool> ReportLibCmd::getKFactorsOptional() {
  return getOptionValue("k_factors");
}
bool ReportLibCmd::getPower() {
  return getOptionValue("power");
}
std::optional<bool> ReportLibCmd::getPowerOptional() {
  return getOptionValue("power");
}
bool ReportLibCmd::getPowerLabel() {
  return getOptionValue("power_label");
}
std::optional<bool> ReportLibCmd::getPowerLabelOptional() {
  return getOptionValue("power_label");
}
bool ReportLibCmd::getRoutingRule() {
  return getOptionValue("routing_rule");
}
std::optional<bool> ReportLibCmd::getRoutingRuleOptional() {
  return getOptionValue("routing_rule");
}
bool ReportLibCmd::getRwm() {
  return getOptionValue("rwm");
}
std::optional<bool> ReportLibCmd::getRwmOptional() {
  return getOptionValue("rwm");
}
bool ReportLibCmd::getTable() {
  return getOptionValue("table");
}
std::optional<bool> ReportLibCmd::getTableOptional() {
  return getOptionValue("table");
}
bool ReportLibCmd::getTiming() {
  return getOptionValue("timing");
}
std::optional<bool> ReportLibCmd::getTimingOptional() {
  return getOptionValue("timing");
}
bool ReportLibCmd::getTimingArcs() {
  return getOptionValue("timing_arcs");
}
std::optional<bool> ReportLibCmd::getTimingArcsOptional() {
  return getOptionValue("timing_arcs");
}
bool ReportLibCmd::getTimingLabel() {
  return getOptionValue("timing_label");
}
std::optional<bool> ReportLibCmd::getTimingLabelOptional() {
  return getOptionValue("timing_label");
}
bool ReportLibCmd::getUserDefinedData() {
  return getOptionValue("user_defined_data");
}
std::optional<bool> ReportLibCmd::getUserDefinedDataOptional() {
  return getOptionValue("user_defined_data");
}
bool ReportLibCmd::getVhdlName() {
  return getOptionValue("vhdl_name");
}
std::optional<bool> ReportLibCmd::getVhdlNameOptional() {
  return getOptionValue("vhdl_name");
}
bool ReportLibCmd::getYield() {
  return getOptionValue("yield");
}
std::optional<bool> ReportLibCmd::getYieldOptional() {
  return getOptionValue("yield");
}
bool ReportLibCmd::getSwitch() {
  return getOptionValue("switch");
}
std::optional<bool> ReportLibCmd::getSwitchOptional() {
  return getOptionValue("switch");
}
bool ReportLibCmd::getPgPin() {
  return getOptionValue("pg_pin");
}
std::optional<bool> ReportLibCmd::getPgPinOptional() {
  return getOptionValue("pg_pin");
}
bool ReportLibCmd::getChar() {
  return getOptionValue("char");
}
std::optional<bool> ReportLibCmd::getCharOptional() {
  return getOptionValue("char");
}
bool ReportLibCmd::getOperatingCondition() {
  return getOptionValue("operating_condition");
}
std::optional<bool> ReportLibCmd::getOperatingConditionOptional() {
  return getOptionValue("operating_condition");
}
std::string ReportLibCmd::getOpCondName() {
  return ValueOf<std::string>(*this, "op_cond_name").value_or(std::string());
}
std::optional<std::string> ReportLibCmd::getOpCondNameOptional() {
  return ValueOf<std::string>(*this, "op_cond_name");
}
bool ReportLibCmd::getNoise() {
  return getOptionValue("noise");
}
std::optional<bool> ReportLibCmd::getNoiseOptional() {
  return getOptionValue("noise");
}
bool ReportLibCmd::getNoiseArcs() {
  return getOptionValue("noise_arcs");
}
std::optional<bool> ReportLibCmd::getNoiseArcsOptional() {
  return getOptionValue("noise_arcs");
}

bool ReportNetCmd::getNosplit() {
  return getOptionValue("nosplit");
}
std::optional<bool> ReportNetCmd::getNosplitOptional() {
  return getOptionValue("nosplit");
}
bool ReportNetCmd::getNoflat() {
  return getOptionValue("noflat");
}
std::optional<bool> ReportNetCmd::getNoflatOptional() {
  return getOptionValue("noflat");
}
bool ReportNetCmd::getTransitionTimes() {
  return getOptionValue("transition_times");
}
std::optional<bool> ReportNetCmd::getTransitionTimesOptional() {
  return getOptionValue("transition_times");
}
bool ReportNetCmd::getOnlyPhysical() {
  return getOptionValue("only_physical");
}
std::optional<bool> ReportNetCmd::getOnlyPhysicalOptional() {
  return getOptionValue("only_physical");
}
bool ReportNetCmd::getVerbose() {
  return getOptionValue("verbose");
}
std::optional<bool> ReportNetCmd::getVerboseOptional() {
  return getOptionValue("verbose");
}
bool ReportNetCmd::getCellDegradation() {
  return getOptionValue("cell_degradation");
}
std::optional<bool> ReportNetCmd::getCellDegradationOptional() {
  return getOptionValue("cell_degradation");
}
bool ReportNetCmd::getConnections() {
  return getOptionValue("connections");
}
std::optional<bool> ReportNetCmd::getConnectionsOptional() {
  return getOptionValue("connections");
}
bool ReportNetCmd::getPhysical() {
  return getOptionValue("physical");
}
std::optional<bool> ReportNetCmd::getPhysicalOptional() {
  return getOptionValue("physical");
}
int ReportNetCmd::getThreshold() {
  return ValueOf<int>(*this, "threshold").value_or(0);
}
std::optional<int> ReportNetCmd::getThresholdOptional() {
  return ValueOf<int>(*this, "threshold");
}
bool ReportNetCmd::getMin() {
  return getOptionValue("min");
}
std::optional<bool> ReportNetCmd::getMinOptional() {
  return getOptionValue("min");
}
int ReportNetCmd::getSignificantDigits() {
  return ValueOf<int>(*this, "significant_digits").value_or(0);
}
std::optional<int> ReportNetCmd::getSignificantDigitsOptional() {
  return ValueOf<int>(*this, "significant_digits");
}
bool ReportNetCmd::getMaxToggleRate() {
  return getOptionValue("max_toggle_rate");
}
std::optional<bool> ReportNetCmd::getMaxToggleRateOptional() {
  return getOptionValue("max_toggle_rate");
}
bool ReportNetCmd::getMaxCapacitance() {
  return getOptionValue("max_capacitance");
}
std::optional<bool> ReportNetCmd::getMaxCapacitanceOptional() {
  return getOptionValue("max_capacitance");
}
bool ReportNetCmd::getScenarios() {
  return getOptionValue("scenarios");
}
std::optional<bool> ReportNetCmd::getScenariosOptional() {
  return getOptionValue("scenarios");
}
std::vector<std::string> ReportNetCmd::getNetList() {
  return ValueOf<std::vector<std::string>>(*this, "net_list").value_or(std::vector<std::string>());
}
std::optional<std::vector<std::string>> ReportNetCmd::getNetListOptional() {
  return ValueOf<std::vector<std::string>>(*this, "net_list");
}

bool ReportNetFanoutCmd::getNosplit() {
  return getOptionValue("nosplit");
}
std::optional<bool> ReportNetFanoutCmd::getNosplitOptional() {
  return getOptionValue("nosplit");
}
bool ReportNetFanoutCmd::getHighFanout() {
  return getOptionValue("high_fanout");
}
std::optional<bool> ReportNetFanoutCmd::getHighFanoutOptional() {
  return getOptionValue("high_fanout");
}
int ReportNetFanoutCmd::getThreshold() {
  return ValueOf<int>(*this, "threshold").value_or(0);
}
std::optional<int> ReportNetFanoutCmd::getThresholdOptional() {
  return ValueOf<int>(*this, "threshold");
}
int ReportNetFanoutCmd::getBound() {
  return ValueOf<int>(*this, "bound").value_or(0);
}
std::optional<int> ReportNetFanoutCmd::getBoundOptional() {
  return ValueOf<int>(*this, "bound");
}
bool ReportNetFanoutCmd::getVerbose() {
  return getOptionValue("verbose");
}
std::optional<bool> ReportNetFanoutCmd::getVerboseOptional() {
  return getOptionValue("verbose");
}
bool ReportNetFanoutCmd::getConnections() {
  return getOptionValue("connections");
}
std::optional<bool> ReportNetFanoutCmd::getConnectionsOptional() {
  return getOptionValue("connections");
}
bool ReportNetFanoutCmd::getPhysical() {
  return getOptionValue("physical");
}
std::optional<bool> ReportNetFanoutCmd::getPhysicalOptional() {
  return getOptionValue("physical");
}
bool ReportNetFanoutCmd::getMin() {
  return getOptionValue("min");
}
std::optional<bool> ReportNetFanoutCmd::getMinOptional() {
  return getOptionValue("min");
}
bool ReportNetFanoutCmd::getTree() {
  return getOptionValue("tree");
}
std::optional<bool> ReportNetFanoutCmd::getTreeOptional() {
  return getOptionValue("tree");
}
int ReportNetFanoutCmd::getDepth() {
  return ValueOf<int>(*this, "depth").value_or(0);
}
std::optional<int> ReportNetFanoutCmd::getDepthOptional() {
  return ValueOf<int>(*this, "depth");
}
std::vector<std::string> ReportNetFanoutCmd::getNetList() {
  return ValueOf<std::vector<std::string>>(*this, "net_list").value_or(std::vector<std::string>());
}
std::optional<std::vector<std::string>> ReportNetFanoutCmd::getNetListOptional() {
  return ValueOf<std::vector<std::string>>(*this, "net_list");
}

bool ReportPortCmd::getDrive() {
  return getOptionValue("drive");
}
std::optional<bool> ReportPortCmd::getDriveOptional() {
  return getOptionValue("drive");
}
bool ReportPortCmd::getVerbose() {
  return getOptionValue("verbose");
}
std::optional<bool> ReportPortCmd::getVerboseOptional() {
  return getOptionValue("verbose");
}
bool ReportPortCmd::getPhysical() {
  return getOptionValue("physical");
}
std::optional<bool> ReportPortCmd::getPhysicalOptional() {
  return getOptionValue("physical");
}
bool ReportPortCmd::getOnlyPhysical() {
  return getOptionValue("only_physical");
}
std::optional<bool> ReportPortCmd::getOnlyPhysicalOptional() {
  return getOptionValue("only_physical");
}
bool ReportPortCmd::getNosplit() {
  return getOptionValue("nosplit");
}
std::optional<bool> ReportPortCmd::getNosplitOptional() {
  return getOptionValue("nosplit");
}
int ReportPortCmd::getSignificantDigits() {
  return ValueOf<int>(*this, "significant_digits").value_or(2);
}
std::optional<int> ReportPortCmd::getSignificantDigitsOptional() {
  return ValueOf<int>(*this, "significant_digits");
}
std::vector<std::string> ReportPortCmd::getPortList() {
  return ValueOf<std::vector<std::string>>(*this, "port_list").value_or(std::vector<std::string>());
}
std::optional<std::vector<std::string>> ReportPortCmd::getPortListOptional() {
  return ValueOf<std::vector<std::string>>(*this, "port_list");
}

bool ReportReferenceCmd::getNosplit() {
  return getOptionValue("nosplit");
}
std::optional<bool> ReportReferenceCmd::getNosplitOptional() {
  return getOptionValue("nosplit");
}
bool ReportReferenceCmd::getHierarchy() {
  return getOptionValue("hierarchy");
}
std::optional<bool> ReportReferenceCmd::getHierarchyOptional() {
  return getOptionValue("hierarchy");
}
