#include "power/PowerActivitySource.h"

#include <algorithm>

#include "hostapi/cdm/Pin.h"
#include "hostapi/sta/Clock.h"
#include "search/Timer.h"

namespace power {

ActivityOf DesignActivity(const sta::Timer& timer) {
  const sta::ClockNetwork& clocks = timer.Clocks();
  float fastest = 0.0f;
  for (const sta::sdc::Clock* clock : clocks.Clocks())
    if (clock->getPeriod() > 0.0f && (fastest == 0.0f || clock->getPeriod() < fastest))
      fastest = clock->getPeriod();
  const double default_rate = fastest > 0.0f ? 0.1 / fastest : 0.0;
  return [&timer, default_rate](const cdm::Pin* pin) {
    PinActivity activity;
    const uint32_t vertex = pin->GetVertexId();
    const int constant = vertex ? timer.Constants().Value(vertex) : -1;
    if (constant >= 0) {
      activity.probability = constant;
      activity.origin = cdm::PwrActivityOrigin::kConstant;
      return activity;
    }
    float period = 0.0f;
    if (vertex)
      for (uint32_t clock : timer.Clocks().ClocksAt(vertex)) {
        const float p = timer.Clocks().Clocks()[clock]->getPeriod();
        if (p > 0.0f && (period == 0.0f || p < period)) period = p;
      }
    activity.probability = 0.5;
    if (period > 0.0f) {
      activity.rate = 2.0 / period;
      activity.origin = cdm::PwrActivityOrigin::kClock;
    } else {
      activity.rate = default_rate;
      activity.origin = cdm::PwrActivityOrigin::kDefault;
    }
    return activity;
  };
}

}  // namespace power
