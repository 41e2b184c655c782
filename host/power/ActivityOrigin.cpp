#include "power/ActivityOrigin.h"

namespace power {

const char* OriginName(ActivityOrigin origin) {
  switch (origin) {
    case ActivityOrigin::kUser:
      return "user";
    case ActivityOrigin::kSaif:
      return "saif";
    case ActivityOrigin::kVcd:
      return "vcd";
    case ActivityOrigin::kClock:
      return "clock";
    case ActivityOrigin::kPropagated:
      return "propagated";
    case ActivityOrigin::kDefault:
      return "default";
    case ActivityOrigin::kConstant:
      return "constant";
    case ActivityOrigin::kUnknown:
      break;
  }
  return "unknown";
}

}  // namespace power
