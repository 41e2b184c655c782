#include "hostapi/cdm/HostServices.h"

#include <ctime>
#include <iomanip>
#include <sstream>

std::string GetTimeDesign() {
  std::time_t now = std::time(nullptr);
  std::ostringstream text;
  text << std::put_time(std::localtime(&now), "%a %b %e %T %Y");
  return text.str();
}
