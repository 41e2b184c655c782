// What a power analysis hands to the power report: the power of a group of
// cells or of one cell, and the switching figures of one net.
#pragma once

#include <cstdint>

namespace cdm {

// Where a net's switching activity came from.
enum class PwrActivityOrigin : uint8_t {
  kUser = 0,        // set_switching_activity
  kSaif = 1,        // read_saif
  kVcd = 2,         // read_vcd
  kClock = 3,       // a clock network: two toggles a period
  kPropagated = 4,  // through the cells from their inputs
  kDefault = 5,     // the default of primary inputs
  kConstant = 6,    // a logic constant or case analysis: no toggles
  kUnknown = 7,
};

// The name of an origin as the report's "Attrs" column prints it.
const char* OriginToString(PwrActivityOrigin origin);

// Power in watts: internal, switching, leakage.
struct PowerResult {
  float internal = 0.0f;
  float switching = 0.0f;
  float leakage = 0.0f;

  float Total() const;
  PowerResult& operator+=(const PowerResult& other);
};

// The switching figures of one net.
struct SwitchPowerRecord {
  float vdd = 0.0f;          // volts
  float net_load = 0.0f;     // farads
  float toggle_rate = 0.0f;  // transitions per second
  float static_probability = 0.0f;
  float switching_power = 0.0f;  // watts
  PwrActivityOrigin origin = PwrActivityOrigin::kUnknown;
};

}  // namespace cdm
