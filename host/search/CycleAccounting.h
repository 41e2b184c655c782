// When a launching clock edge is checked against a capturing one, over the
// clocks' common period: the setup relation is the shortest time from a
// launch to the first capture after it; the hold relation is the largest
// time from a launch to the last capture at or before it (negative or 0).
// Multicycle paths move both.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace sta {

namespace sdc {
class Clock;
}

class CycleAccounting {
 public:
  void Reset(const std::vector<sdc::Clock*>& clocks);

  // A clock edge is clock number * 2 + (0 rise, 1 fall).
  double EdgeTime(int clock_edge) const;
  double Period(int clock_edge) const;

  struct Relation {
    double setup = 0.0;  // capture time minus launch time
    double hold = 0.0;
    // The launch that gives each, as the time from the edge in the first
    // period (a whole number of launch periods).
    double setup_launch = 0.0;
    double hold_launch = 0.0;
  };
  // The relation of a launch and a capture edge, before multicycles.
  const Relation& Find(int launch_edge, int capture_edge);

 private:
  Relation Compute(int launch_edge, int capture_edge) const;

  std::vector<sdc::Clock*> clocks_;
  std::unordered_map<uint64_t, Relation> relations_;
};

}  // namespace sta
