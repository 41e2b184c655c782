// The power tables: the power of a design's cell groups, of single
// instances and the switching power of single nets, from the results a
// power analysis hands over.
#pragma once

#include <map>
#include <string>

#include "hostapi/cdm/PowerRecords.h"

namespace cdm {
class Cell;
class Net;
}  // namespace cdm

class PowerReport {
 public:
  explicit PowerReport(int digits = 3) : digits_(digits) {}

  // Digits the formatters use when theirs is below 1.
  int GetDigits() const { return digits_; }
  void SetDigits(int digits) { digits_ = digits; }

  // The banner, the libraries, the operating conditions and the wire-load
  // model of the current design.
  void PrintHeaderInfo();
  // The header, then a row per group and the total as given (it is not
  // summed from the groups).
  void PrintPowerInfo(cdm::PowerResult total, cdm::PowerResult sequential,
                      cdm::PowerResult combinational, cdm::PowerResult macro, cdm::PowerResult pad);
  void PrintInstsPowerInfo(const std::map<const cdm::Cell*, cdm::PowerResult>& cells);
  void PrintNetsPowerInfo(const std::map<const cdm::Net*, cdm::SwitchPowerRecord>& nets);

  std::string FloatToScientific(float value, int digits, float factor) const;
  std::string FloatToDefault(float value, int digits, float factor) const;
  std::string FloatToFix(float value, int digits, float factor) const;
  std::string FloatToPercent(float value, int digits, float factor) const;

 private:
  int Digits(int digits) const { return digits >= 1 ? digits : digits_; }

  int digits_;
};
