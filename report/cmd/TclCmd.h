// The report commands of the module: one class per Tcl command. Options
// are read through the accessor pairs; a getX without value falls back to
// its documented default.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "hostapi/cmd/CommonCmd.h"
#include "hostapi/cmd/HostReportCmds.h"

class CheckDesignCmd : public CommonCmd {
 public:
  CheckDesignCmd(const char* name, const char* description, const char* third);
  ~CheckDesignCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  bool getSummary();
  std::optional<bool> getSummaryOptional();
  bool getNoWarnings();
  std::optional<bool> getNoWarningsOptional();
  bool getOneLevel();
  std::optional<bool> getOneLevelOptional();
  bool getMultipleDesigns();
  std::optional<bool> getMultipleDesignsOptional();
  bool getNoConnectionClass();
  std::optional<bool> getNoConnectionClassOptional();
  bool getNosplit();
  std::optional<bool> getNosplitOptional();
  bool getUnmapped();
  std::optional<bool> getUnmappedOptional();
  bool getCells();
  std::optional<bool> getCellsOptional();
  bool getPorts();
  std::optional<bool> getPortsOptional();
  bool getDesigns();
  std::optional<bool> getDesignsOptional();
  bool getNets();
  std::optional<bool> getNetsOptional();
  bool getLoop();
  std::optional<bool> getLoopOptional();
  bool getTristates();
  std::optional<bool> getTristatesOptional();
  bool getHtmlFileName();
  std::optional<bool> getHtmlFileNameOptional();
};

class GetFaninPinsCmd : public CommonCmd {
 public:
  GetFaninPinsCmd(const char* name, const char* description, const char* third);
  ~GetFaninPinsCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  std::vector<std::string> getObjectList();
  std::optional<std::vector<std::string>> getObjectListOptional();
  int getLevel();
  std::optional<int> getLevelOptional();
  bool getVerbose();
  std::optional<bool> getVerboseOptional();
};

class GetFanoutPinsCmd : public CommonCmd {
 public:
  GetFanoutPinsCmd(const char* name, const char* description, const char* third);
  ~GetFanoutPinsCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  std::vector<std::string> getObjectList();
  std::optional<std::vector<std::string>> getObjectListOptional();
  int getLevel();
  std::optional<int> getLevelOptional();
  bool getVerbose();
  std::optional<bool> getVerboseOptional();
};

class ReportAreaCmd : public CommonCmd {
 public:
  ReportAreaCmd(const char* name, const char* description, const char* third);
  ~ReportAreaCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  bool getNosplit();
  std::optional<bool> getNosplitOptional();
  bool getPhysical();
  std::optional<bool> getPhysicalOptional();
  bool getIndividualSiteDefUtil();
  std::optional<bool> getIndividualSiteDefUtilOptional();
  bool getHierarchy();
  std::optional<bool> getHierarchyOptional();
  bool getVerbose();
  std::optional<bool> getVerboseOptional();
};

class ReportAttributeCmd : public CommonCmd {
 public:
  ReportAttributeCmd(const char* name, const char* description, const char* third);
  ~ReportAttributeCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  bool getCell();
  std::optional<bool> getCellOptional();
  bool getNet();
  std::optional<bool> getNetOptional();
  bool getDesign();
  std::optional<bool> getDesignOptional();
  bool getReference();
  std::optional<bool> getReferenceOptional();
  bool getPort();
  std::optional<bool> getPortOptional();
  bool getPin();
  std::optional<bool> getPinOptional();
  std::vector<std::string> getObjectList();
  std::optional<std::vector<std::string>> getObjectListOptional();
};

class ReportBufferTreeCmd : public CommonCmd {
 public:
  ReportBufferTreeCmd(const char* name, const char* description, const char* third);
  ~ReportBufferTreeCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  std::vector<std::string> getFrom();
  std::optional<std::vector<std::string>> getFromOptional();
  std::vector<std::string> getNet();
  std::optional<std::vector<std::string>> getNetOptional();
  int getDepth();
  std::optional<int> getDepthOptional();
  bool getConnections();
  std::optional<bool> getConnectionsOptional();
  bool getHierarchy();
  std::optional<bool> getHierarchyOptional();
  bool getPhysical();
  std::optional<bool> getPhysicalOptional();
  bool getNosplit();
  std::optional<bool> getNosplitOptional();
};

class ReportBusCmd : public CommonCmd {
 public:
  ReportBusCmd(const char* name, const char* description, const char* third);
  ~ReportBusCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  bool getNosplit();
  std::optional<bool> getNosplitOptional();
};

class ReportCellCmd : public CommonCmd {
 public:
  ReportCellCmd(const char* name, const char* description, const char* third);
  ~ReportCellCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  bool getNosplit();
  std::optional<bool> getNosplitOptional();
  bool getConnections();
  std::optional<bool> getConnectionsOptional();
  bool getVerbose();
  std::optional<bool> getVerboseOptional();
  bool getPhysical();
  std::optional<bool> getPhysicalOptional();
  bool getOnlyPhysical();
  std::optional<bool> getOnlyPhysicalOptional();
  int getSignificantDigits();
  std::optional<int> getSignificantDigitsOptional();
  std::vector<std::string> getCellList();
  std::optional<std::vector<std::string>> getCellListOptional();
};

class ReportHierarchyCmd : public CommonCmd {
 public:
  ReportHierarchyCmd(const char* name, const char* description, const char* third);
  ~ReportHierarchyCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  bool getNosplit();
  std::optional<bool> getNosplitOptional();
  bool getFull();
  std::optional<bool> getFullOptional();
  bool getNoleaf();
  std::optional<bool> getNoleafOptional();
};

class ReportLibCmd : public CommonCmd {
 public:
  ReportLibCmd(const char* name, const char* description, const char* third);
  ~ReportLibCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  std::string getLibname();
  std::optional<std::string> getLibnameOptional();
  std::vector<std::string> getCellList();
  std::optional<std::vector<std::string>> getCellListOptional();
  bool getAll();
  std::optional<bool> getAllOptional();
  bool getEm();
  std::optional<bool> getEmOptional();
  bool getFpga();
  std::optional<bool> getFpgaOptional();
  bool getFullTable();
  std::optional<bool> getFullTableOptional();
  bool getKFactors();
  std::optional<bool> getKFactorsOptional();
  bool getPower();
  std::optional<bool> getPowerOptional();
  bool getPowerLabel();
  std::optional<bool> getPowerLabelOptional();
  bool getRoutingRule();
  std::optional<bool> getRoutingRuleOptional();
  bool getRwm();
  std::optional<bool> getRwmOptional();
  bool getTable();
  std::optional<bool> getTableOptional();
  bool getTiming();
  std::optional<bool> getTimingOptional();
  bool getTimingArcs();
  std::optional<bool> getTimingArcsOptional();
  bool getTimingLabel();
  std::optional<bool> getTimingLabelOptional();
  bool getUserDefinedData();
  std::optional<bool> getUserDefinedDataOptional();
  bool getVhdlName();
  std::optional<bool> getVhdlNameOptional();
  bool getYield();
  std::optional<bool> getYieldOptional();
  bool getSwitch();
  std::optional<bool> getSwitchOptional();
  bool getPgPin();
  std::optional<bool> getPgPinOptional();
  bool getChar();
  std::optional<bool> getCharOptional();
  bool getOperatingCondition();
  std::optional<bool> getOperatingConditionOptional();
  std::string getOpCondName();
  std::optional<std::string> getOpCondNameOptional();
  bool getNoise();
  std::optional<bool> getNoiseOptional();
  bool getNoiseArcs();
  std::optional<bool> getNoiseArcsOptional();
};

class ReportNetCmd : public CommonCmd {
 public:
  ReportNetCmd(const char* name, const char* description, const char* third);
  ~ReportNetCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  bool getNosplit();
  std::optional<bool> getNosplitOptional();
  bool getNoflat();
  std::optional<bool> getNoflatOptional();
  bool getTransitionTimes();
  std::optional<bool> getTransitionTimesOptional();
  bool getOnlyPhysical();
  std::optional<bool> getOnlyPhysicalOptional();
  bool getVerbose();
  std::optional<bool> getVerboseOptional();
  bool getCellDegradation();
  std::optional<bool> getCellDegradationOptional();
  bool getConnections();
  std::optional<bool> getConnectionsOptional();
  bool getPhysical();
  std::optional<bool> getPhysicalOptional();
  int getThreshold();
  std::optional<int> getThresholdOptional();
  bool getMin();
  std::optional<bool> getMinOptional();
  int getSignificantDigits();
  std::optional<int> getSignificantDigitsOptional();
  bool getMaxToggleRate();
  std::optional<bool> getMaxToggleRateOptional();
  bool getMaxCapacitance();
  std::optional<bool> getMaxCapacitanceOptional();
  bool getScenarios();
  std::optional<bool> getScenariosOptional();
  std::vector<std::string> getNetList();
  std::optional<std::vector<std::string>> getNetListOptional();
};

class ReportNetFanoutCmd : public CommonCmd {
 public:
  ReportNetFanoutCmd(const char* name, const char* description, const char* third);
  ~ReportNetFanoutCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  bool getNosplit();
  std::optional<bool> getNosplitOptional();
  bool getHighFanout();
  std::optional<bool> getHighFanoutOptional();
  int getThreshold();
  std::optional<int> getThresholdOptional();
  int getBound();
  std::optional<int> getBoundOptional();
  bool getVerbose();
  std::optional<bool> getVerboseOptional();
  bool getConnections();
  std::optional<bool> getConnectionsOptional();
  bool getPhysical();
  std::optional<bool> getPhysicalOptional();
  bool getMin();
  std::optional<bool> getMinOptional();
  bool getTree();
  std::optional<bool> getTreeOptional();
  int getDepth();
  std::optional<int> getDepthOptional();
  std::vector<std::string> getNetList();
  std::optional<std::vector<std::string>> getNetListOptional();
};

class ReportPortCmd : public CommonCmd {
 public:
  ReportPortCmd(const char* name, const char* description, const char* third);
  ~ReportPortCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  bool getDrive();
  std::optional<bool> getDriveOptional();
  bool getVerbose();
  std::optional<bool> getVerboseOptional();
  bool getPhysical();
  std::optional<bool> getPhysicalOptional();
  bool getOnlyPhysical();
  std::optional<bool> getOnlyPhysicalOptional();
  bool getNosplit();
  std::optional<bool> getNosplitOptional();
  int getSignificantDigits();
  std::optional<int> getSignificantDigitsOptional();
  std::vector<std::string> getPortList();
  std::optional<std::vector<std::string>> getPortListOptional();
};

class ReportReferenceCmd : public CommonCmd {
 public:
  ReportReferenceCmd(const char* name, const char* description, const char* third);
  ~ReportReferenceCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  bool getNosplit();
  std::optional<bool> getNosplitOptional();
  bool getHierarchy();
  std::optional<bool> getHierarchyOptional();
};

class ReportUnitsCmd : public CommonCmd {
 public:
  ReportUnitsCmd(const char* name, const char* description, const char* third);
  ~ReportUnitsCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;
};

// Entry points looked up by the shell.
extern "C" void ReportCmdRegister();
extern "C" void ReportCmdHelp();
