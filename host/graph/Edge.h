// An edge of the timing graph: a wire from a net's driver to one of its
// loads, or one timing arc set of a library cell between two of its pins.
#pragma once

#include <cstdint>

namespace cdm {
class LibTimingArcSet;
}

namespace sta {

enum class EdgeRole : uint8_t {
  kWire,
  kCombinational,  // combinational, preset, clear, three-state enable
  kClockToOutput,  // rising_edge / falling_edge: a register's launch
  kThreeStateOff,  // three-state disable: kept, never propagated
  kSetup,          // setup, recovery and non-sequential setup checks
  kHold,           // hold, removal and non-sequential hold checks
  kMinPulseWidth,  // on a clock pin itself
  kMinPeriod,      // on a clock pin itself
  kOtherCheck,     // skew, nochange: kept, not checked
};

// Whether arrivals travel along edges of the role (and levels count them).
inline bool Propagates(EdgeRole role) {
  return role == EdgeRole::kWire || role == EdgeRole::kCombinational ||
         role == EdgeRole::kClockToOutput;
}
inline bool IsCheck(EdgeRole role) {
  return role == EdgeRole::kSetup || role == EdgeRole::kHold || role == EdgeRole::kMinPulseWidth ||
         role == EdgeRole::kMinPeriod;
}

// The arcs of an edge, one bit per pair of edges: bit (from * 2 + to) with
// 0 rise and 1 fall at each end. For a check, `from` is the clock's edge
// and `to` the data's.
inline uint8_t ArcBit(int from_rf, int to_rf) {
  return static_cast<uint8_t>(1u << (from_rf * 2 + to_rf));
}
constexpr uint8_t kArcsUnate = 0x9;      // rise->rise, fall->fall
constexpr uint8_t kArcsInverting = 0x6;  // rise->fall, fall->rise
constexpr uint8_t kArcsAll = 0xF;

struct Edge {
  uint32_t from;
  uint32_t to;
  const cdm::LibTimingArcSet* arc_set;  // null for a wire
  EdgeRole role;
  uint8_t arcs;   // ArcBit set
  uint8_t flags;  // Flag bits
  enum Flag : uint8_t { kLoopBreak = 1 };

  bool IsWire() const { return role == EdgeRole::kWire; }
  bool BreaksLoop() const { return (flags & kLoopBreak) != 0; }
  bool HasArc(int from_rf, int to_rf) const { return (arcs & ArcBit(from_rf, to_rf)) != 0; }
};

}  // namespace sta
