// A timing exception: set_false_path, set_multicycle_path, set_max_delay,
// set_min_delay, or a group_path assignment.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "hostapi/cdm/Selectors.h"
#include "sdc/SdcObject.h"

namespace sta::sdc {

// -from/-to/-through and their -rise_/-fall_ forms: objects, and the
// transitions at them that the exception covers.
struct ExceptionPoint {
  std::vector<SdcObject> objects;
  const cdm::RiseFallBoth* edges = cdm::RiseFallBoth::rise_fall_;

  bool operator==(const ExceptionPoint& other) const {
    return edges == other.edges && objects == other.objects;
  }
};

struct PathException {
  enum class Type { kFalsePath, kMulticyclePath, kMaxDelay, kMinDelay, kGroupPath };

  Type type = Type::kFalsePath;
  std::optional<ExceptionPoint> from;
  std::vector<ExceptionPoint> throughs;  // in order: through each in turn
  std::optional<ExceptionPoint> to;
  // -setup / -hold: which checks the exception covers (false path and
  // multicycle path); both when neither is given.
  bool setup = true;
  bool hold = true;
  // set_multicycle_path: -start or -end (the default for setup is -end, for
  // hold -start).
  bool start = false;
  bool end = false;
  // The path multiplier (multicycle) or the delay in seconds (max/min).
  float value = 0.0f;
  // set_max_delay / set_min_delay -ignore_clock_latency.
  bool ignore_clock_latency = false;
  // group_path: the group's name, or -default.
  std::string group;
  bool group_default = false;
  float weight = 1.0f;
  std::string comment;

  // The same paths and checks: a later exception of the kind replaces the
  // earlier one's value.
  bool SamePaths(const PathException& other) const {
    return type == other.type && from == other.from && throughs == other.throughs &&
           to == other.to && setup == other.setup && hold == other.hold && start == other.start &&
           end == other.end && group == other.group && group_default == other.group_default;
  }
};

}  // namespace sta::sdc
