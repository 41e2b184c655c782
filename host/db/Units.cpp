#include "hostapi/cdm/Units.h"

#include <cstdio>

namespace cdm {

std::string Unit::asString(double value, int digits) const {
  double shown = scale != 0.0f ? value / static_cast<double>(scale) : value;
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.*f", digits < 0 ? 0 : digits, shown);
  return buffer;
}

}  // namespace cdm
