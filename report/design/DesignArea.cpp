// Text of an area in report_reference and report_cell.
#include "design/DesignArea.h"

#include <cstdio>

std::string AreaText(float area) {
  char buffer[58];
  std::snprintf(buffer, sizeof buffer, "%f", static_cast<double>(area));
  return buffer;
}
