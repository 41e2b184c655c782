// The power tables as the host prints them: the report module provides
// them when it is loaded, and the host's report_power prints through them.
#pragma once

#include <map>

#include "hostapi/cdm/PowerRecords.h"

namespace cdm {

class Cell;
class Net;

class PowerTables {
 public:
  virtual ~PowerTables() = default;
  // `digits`: of the numbers whose format takes the default.
  virtual void PrintPowerInfo(int digits, PowerResult total, PowerResult sequential,
                              PowerResult combinational, PowerResult macro, PowerResult pad) = 0;
  virtual void PrintInstsPowerInfo(int digits, const std::map<const Cell*, PowerResult>& cells) = 0;
  virtual void PrintNetsPowerInfo(int digits,
                                  const std::map<const Net*, SwitchPowerRecord>& nets) = 0;
};

// Kept by the host; null until the report module is loaded.
void SetPowerTables(PowerTables* tables);
PowerTables* GetPowerTables();

}  // namespace cdm
