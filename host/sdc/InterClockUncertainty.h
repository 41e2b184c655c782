// set_clock_uncertainty -from/-to: the uncertainty between two clocks.
#pragma once

#include <optional>

#include "hostapi/cdm/Selectors.h"

namespace sta::sdc {

class Clock;

struct InterClockUncertainty {
  Clock* from = nullptr;
  Clock* to = nullptr;
  const cdm::RiseFallBoth* from_edges = cdm::RiseFallBoth::rise_fall_;
  const cdm::RiseFallBoth* to_edges = cdm::RiseFallBoth::rise_fall_;
  std::optional<float> value[2];  // seconds: min is hold, max is setup
};

}  // namespace sta::sdc
