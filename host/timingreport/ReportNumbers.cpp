#include "timingreport/ReportNumbers.h"

#include <cstdio>

#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/LibertyLib.h"

namespace sta {

ReportNumbers::ReportNumbers(int digits)
    : digits_(digits), time_(1e-9f, "1ns", "(ns)"), cap_(1e-12f, "1pf", "(pF)") {
  if (const cdm::LibertyLib* lib = cdm::DbManager::GetDefaultLiberty()) {
    time_ = lib->GetTimeUnit();
    cap_ = lib->GetCapacitanceUnit();
  }
}

std::string ReportNumbers::Count(double value) const {
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", digits_, value);
  return WithoutNegativeZero(text);
}

std::string ReportNumbers::Format(const cdm::Unit& unit, double value) const {
  return WithoutNegativeZero(unit.asString(value, digits_));
}

std::string ReportNumbers::WithoutNegativeZero(std::string text) {
  // A value that rounds to zero prints without its sign.
  if (!text.empty() && text[0] == '-' && text.find_first_not_of("-0.") == std::string::npos)
    text.erase(0, 1);
  return text;
}

std::string PadRight(const std::string& text, size_t width) {
  return text.size() >= width ? text : text + std::string(width - text.size(), ' ');
}

std::string PadLeft(const std::string& text, size_t width) {
  return text.size() >= width ? text : std::string(width - text.size(), ' ') + text;
}

}  // namespace sta
