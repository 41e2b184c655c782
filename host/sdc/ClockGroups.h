// set_clock_groups: groups of clocks between which no paths are timed.
#pragma once

#include <string>
#include <vector>

namespace sta::sdc {

class Clock;

struct ClockGroups {
  enum class Kind { kLogicallyExclusive, kPhysicallyExclusive, kAsynchronous };

  std::string name;
  Kind kind = Kind::kAsynchronous;
  bool allow_paths = false;
  std::vector<std::vector<Clock*>> groups;
  std::string comment;
};

}  // namespace sta::sdc
