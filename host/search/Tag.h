// What an arrival is of: the clock edge that launched it (or none), whether
// it is the clock itself on its network, and how far it has come along the
// timing exceptions that name points on its way.
#pragma once

#include <cstdint>

namespace sta {

struct Tag {
  int32_t clock_edge = -1;  // clock number * 2 + edge (0 rise, 1 fall); -1 unclocked
  bool is_clock = false;    // the clock's own arrival on its network
  uint32_t states = 0;      // a set of exception states (ExceptionPaths); 0 the empty set

  bool operator==(const Tag& other) const {
    return clock_edge == other.clock_edge && is_clock == other.is_clock && states == other.states;
  }
  int Clock() const { return clock_edge < 0 ? -1 : clock_edge / 2; }
};

}  // namespace sta
