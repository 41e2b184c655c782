#include "hostapi/cdm/PowerRecords.h"

#include "hostapi/cdm/PowerTables.h"

namespace cdm {

const char* OriginToString(PwrActivityOrigin origin) {
  switch (origin) {
    case PwrActivityOrigin::kUser:
      return "user";
    case PwrActivityOrigin::kSaif:
      return "saif";
    case PwrActivityOrigin::kVcd:
      return "vcd";
    case PwrActivityOrigin::kClock:
      return "clock";
    case PwrActivityOrigin::kPropagated:
      return "propagated";
    case PwrActivityOrigin::kDefault:
      return "default";
    case PwrActivityOrigin::kConstant:
      return "constant";
    case PwrActivityOrigin::kUnknown:
      break;
  }
  return "unknown";
}

float PowerResult::Total() const {
  return internal + switching + leakage;
}

PowerResult& PowerResult::operator+=(const PowerResult& other) {
  internal += other.internal;
  switching += other.switching;
  leakage += other.leakage;
  return *this;
}

}  // namespace cdm

namespace cdm {
namespace {
PowerTables* power_tables = nullptr;
}

void SetPowerTables(PowerTables* tables) {
  power_tables = tables;
}

PowerTables* GetPowerTables() {
  return power_tables;
}

}  // namespace cdm
