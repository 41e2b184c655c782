// Where a net's switching activity came from. The values are those the
// power report's net table names in its "Attrs" column.
#pragma once

#include <cstdint>

namespace power {

enum class ActivityOrigin : uint8_t {
  kUser = 0,        // set_switching_activity
  kSaif = 1,        // read_saif
  kVcd = 2,         // read_vcd
  kClock = 3,       // on a clock network: two toggles a period
  kPropagated = 4,  // worked out through the cells from their inputs
  kDefault = 5,     // the default of primary inputs (and of cells nothing is known of)
  kConstant = 6,    // a logic constant or case analysis: no toggles
  kUnknown = 7,     // an undriven net, or a net outside the design
};
constexpr int kActivityOriginCount = 8;

// The origin as reports name it: "user", "saif", "vcd", "clock",
// "propagated", "default", "constant", "unknown".
const char* OriginName(ActivityOrigin origin);

}  // namespace power
