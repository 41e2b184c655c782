// Numbers as the timing reports print them: in the default library's time
// and capacitance units, with a fixed number of decimals, never "-0.00".
#pragma once

#include <string>

#include "hostapi/cdm/Units.h"

namespace sta {

class ReportNumbers {
 public:
  // The units of the default library (ns and pF without one).
  explicit ReportNumbers(int digits);

  std::string Time(double seconds) const { return Format(time_, seconds); }
  std::string Cap(double farads) const { return Format(cap_, farads); }
  // A number without a unit (fan-out, area).
  std::string Count(double value) const;
  int Digits() const { return digits_; }
  const cdm::Unit& TimeUnit() const { return time_; }
  const cdm::Unit& CapUnit() const { return cap_; }

 private:
  std::string Format(const cdm::Unit& unit, double value) const;
  static std::string WithoutNegativeZero(std::string text);

  int digits_;
  cdm::Unit time_;
  cdm::Unit cap_;
};

// `text` padded with blanks to `width` on the right (left-aligned) or on the
// left (right-aligned).
std::string PadRight(const std::string& text, size_t width);
std::string PadLeft(const std::string& text, size_t width);

}  // namespace sta
