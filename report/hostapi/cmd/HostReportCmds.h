// The two report commands whose exec and postExec the host defines; the
// module declares and constructs them like the others.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "hostapi/cmd/CommonCmd.h"

class ReportConstraintCmd : public CommonCmd {
 public:
  ReportConstraintCmd(const char* name, const char* description, const char* third);
  ~ReportConstraintCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  bool getAllViolators();
  std::optional<bool> getAllViolatorsOptional();
  bool getVerbose();
  std::optional<bool> getVerboseOptional();
  int getSignificantDigits();
  std::optional<int> getSignificantDigitsOptional();
  bool getMaxArea();
  std::optional<bool> getMaxAreaOptional();
  bool getMaxDelay();
  std::optional<bool> getMaxDelayOptional();
  bool getCriticalRange();
  std::optional<bool> getCriticalRangeOptional();
  bool getMinDelay();
  std::optional<bool> getMinDelayOptional();
  bool getMaxCapacitance();
  std::optional<bool> getMaxCapacitanceOptional();
  bool getMinCapacitance();
  std::optional<bool> getMinCapacitanceOptional();
  bool getMaxTransition();
  std::optional<bool> getMaxTransitionOptional();
  bool getMaxFanout();
  std::optional<bool> getMaxFanoutOptional();
  bool getCellDegradation();
  std::optional<bool> getCellDegradationOptional();
  bool getMaxToggleRate();
  std::optional<bool> getMaxToggleRateOptional();
  bool getMinPorosity();
  std::optional<bool> getMinPorosityOptional();
  bool getMaxDynamicPower();
  std::optional<bool> getMaxDynamicPowerOptional();
  bool getMaxLeakagePower();
  std::optional<bool> getMaxLeakagePowerOptional();
  bool getMaxTotalPower();
  std::optional<bool> getMaxTotalPowerOptional();
  bool getMaxNetLength();
  std::optional<bool> getMaxNetLengthOptional();
  bool getMinPulseWidth();
  std::optional<bool> getMinPulseWidthOptional();
  bool getMinPeriod();
  std::optional<bool> getMinPeriodOptional();
  bool getConnectionClass();
  std::optional<bool> getConnectionClassOptional();
  bool getMultiportNet();
  std::optional<bool> getMultiportNetOptional();
  bool getNosplit();
  std::optional<bool> getNosplitOptional();
  bool getIgnoreInfeasiblePaths();
  std::optional<bool> getIgnoreInfeasiblePathsOptional();
};

class ReportDesignCmd : public CommonCmd {
 public:
  ReportDesignCmd(const char* name, const char* description, const char* third);
  ~ReportDesignCmd() override;
  int prevExec() override;
  int exec() override;
  int postExec() override;
  void printUsage() override;

  bool getNosplit();
  std::optional<bool> getNosplitOptional();
  bool getPhysical();
  std::optional<bool> getPhysicalOptional();
};
