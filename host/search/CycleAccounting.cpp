#include "search/CycleAccounting.h"

#include <cmath>
#include <limits>
#include <numeric>

#include "hostapi/sta/Clock.h"

namespace sta {
namespace {

// Times in whole femtoseconds, so that the common period is exact.
int64_t Femto(double seconds) {
  return static_cast<int64_t>(std::llround(seconds * 1e15));
}

}  // namespace

void CycleAccounting::Reset(const std::vector<sdc::Clock*>& clocks) {
  clocks_ = clocks;
  relations_.clear();
}

double CycleAccounting::EdgeTime(int clock_edge) const {
  const std::vector<float>& waveform = clocks_[clock_edge / 2]->getWaveform();
  const size_t index = static_cast<size_t>(clock_edge % 2);
  return index < waveform.size() ? waveform[index] : 0.0;
}

double CycleAccounting::Period(int clock_edge) const {
  return clocks_[clock_edge / 2]->getPeriod();
}

const CycleAccounting::Relation& CycleAccounting::Find(int launch_edge, int capture_edge) {
  const uint64_t key = (static_cast<uint64_t>(static_cast<uint32_t>(launch_edge)) << 32) |
                       static_cast<uint32_t>(capture_edge);
  auto found = relations_.find(key);
  if (found == relations_.end())
    found = relations_.emplace(key, Compute(launch_edge, capture_edge)).first;
  return found->second;
}

CycleAccounting::Relation CycleAccounting::Compute(int launch_edge, int capture_edge) const {
  const int64_t launch_period = Femto(Period(launch_edge));
  const int64_t capture_period = Femto(Period(capture_edge));
  const int64_t launch_time = Femto(EdgeTime(launch_edge));
  const int64_t capture_time = Femto(EdgeTime(capture_edge));
  Relation relation;
  if (launch_period <= 0 || capture_period <= 0) {
    relation.setup = capture_time > launch_time ? (capture_time - launch_time) * 1e-15 : 0.0;
    relation.hold = 0.0;
    return relation;
  }
  // Launches over the common period of both clocks (at most 10000 of them,
  // for periods with no small common multiple).
  const int64_t common = std::lcm(launch_period, capture_period);
  int64_t launches = common / launch_period;
  if (launches < 1 || launches > 10000) launches = 10000;
  int64_t best_setup = std::numeric_limits<int64_t>::max();
  int64_t best_hold = std::numeric_limits<int64_t>::min();
  int64_t setup_launch = 0;
  int64_t hold_launch = 0;
  for (int64_t i = 0; i < launches; ++i) {
    const int64_t launch = launch_time + i * launch_period;
    // The first capture strictly after the launch.
    int64_t k = (launch - capture_time) / capture_period;
    int64_t capture = capture_time + k * capture_period;
    while (capture <= launch) capture += capture_period;
    while (capture - capture_period > launch) capture -= capture_period;
    if (capture - launch < best_setup) {
      best_setup = capture - launch;
      setup_launch = i * launch_period;
    }
    // The last capture at or before the launch.
    if (capture - capture_period - launch >= best_hold) {  // ties: the later launch
      best_hold = capture - capture_period - launch;
      hold_launch = i * launch_period;
    }
  }
  // The hold check is shown at a capture edge of time 0 or later.
  while (launch_time + hold_launch + best_hold < 0) hold_launch += launch_period;
  relation.setup = best_setup * 1e-15;
  relation.hold = best_hold * 1e-15;
  relation.setup_launch = setup_launch * 1e-15;
  relation.hold_launch = hold_launch * 1e-15;
  return relation;
}

}  // namespace sta
