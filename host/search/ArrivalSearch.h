// Arrival times, forward through the graph in level order: per vertex one
// entry per tag, each with the earliest (min) and latest (max) arrival of a
// rising and of a falling edge. Arrivals start at the clock sources (the
// clock edge and its latency), at pins with input delays (the clock edge,
// the delay and the driving cell's delay) and, unclocked, at the other top
// inputs. Ideal clocks reach their whole network at once; propagated ones
// take the delays of their trees. A register launches the clock edge that
// reaches its clock pin.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <unordered_map>
#include <vector>

#include "search/SearchContext.h"
#include "search/TagTable.h"

namespace sta {

namespace sdc {
class InputDelay;
}

constexpr float kNoArrivalMax = -std::numeric_limits<float>::infinity();
constexpr float kNoArrivalMin = std::numeric_limits<float>::infinity();

inline float NoArrival(int mm) {
  return mm == 0 ? kNoArrivalMin : kNoArrivalMax;
}
inline bool HasArrival(float value) {
  return value != kNoArrivalMin && value != kNoArrivalMax;
}

// The arrivals of one tag at one vertex: value[rf * 2 + mm].
struct Arrival {
  uint32_t tag;
  float value[4];

  float Get(int rf, int mm) const { return value[rf * 2 + mm]; }
  bool Has(int rf, int mm) const { return HasArrival(value[rf * 2 + mm]); }
};

// Where an arrival starts.
struct ArrivalSeed {
  enum class Kind : uint8_t { kClockSource, kInputDelay, kUnclocked };
  Kind kind;
  Arrival arrival;
  const sdc::InputDelay* input_delay = nullptr;  // kInputDelay
  // The clock's latency included in the arrival, per rf * 2 + mm (input
  // delays and clock sources), and the driving cell's delay.
  float latency[4] = {0, 0, 0, 0};
  float drive_delay[4] = {0, 0, 0, 0};
};

class ArrivalSearch {
 public:
  void Run(const SearchContext& context);

  const Arrival* Begin(uint32_t vertex) const { return entries_.data() + first_[vertex]; }
  const Arrival* End(uint32_t vertex) const {
    return entries_.data() + first_[vertex] + count_[vertex];
  }
  // The entry of a tag at a vertex, or null.
  const Arrival* Find(uint32_t vertex, uint32_t tag) const;
  const TagTable& Tags() const { return tags_; }
  // The seeds at a vertex, or null.
  const std::vector<ArrivalSeed>* SeedsAt(uint32_t vertex) const {
    auto found = seeds_.find(vertex);
    return found == seeds_.end() ? nullptr : &found->second;
  }
  size_t EntryCount() const { return entries_.size(); }
  const SearchContext& Context() const { return context_; }

  // A clock is defined on the vertex: nothing arrives there but the clock.
  bool IsClockSource(uint32_t vertex) const { return clock_source_[vertex]; }
  // Whether the clock of a clock edge is ideal.
  bool IdealClock(int clock) const { return clock >= 0 && ideal_[clock]; }

  // The tag an arrival of tag `from_tag` at an edge's source takes at its
  // sink, for edge `from_rf` to `to_rf`; false when it does not pass.
  bool Propagate(uint32_t edge, uint32_t from_tag, int from_rf, int to_rf, uint32_t& to_tag);
  // The latency of a clock edge (0 rise, 1 fall): its source latency and,
  // for an ideal clock, its network latency, each when asked for.
  float ClockLatency(int clock, int rf, int mm, bool source, bool network) const;
  // The delay an arrival of `tag` takes along an arc of `edge`.
  float ArcDelay(uint32_t edge, uint32_t tag, int from_rf, int to_rf, int mm) const;
  // The arrival of a clock at a register's clock pin: for an ideal clock its
  // edge and latency, whatever lies between; for a propagated one the
  // arrival through its tree.
  float ClockPinArrival(const Arrival& clock, int rf, int mm) const;

 private:
  void Seed();
  void SeedClocks();
  // The exception states of a path that starts at input `vertex`; kDropped
  // when an exception drops it there.
  uint32_t StartStates(uint32_t vertex, int clock, int rf);
  void SeedInputDelays();
  void SeedUnclocked();
  void AddSeed(uint32_t vertex, ArrivalSeed seed);
  void VisitVertex(uint32_t vertex);
  bool Allowed(uint32_t vertex, int rf) const;

  SearchContext context_;
  TagTable tags_;
  std::vector<bool> ideal_;         // per clock
  std::vector<bool> clock_source_;  // per vertex
  std::vector<Arrival> entries_;
  std::vector<uint32_t> first_;
  std::vector<uint16_t> count_;
  std::unordered_map<uint32_t, std::vector<ArrivalSeed>> seeds_;
  std::vector<Arrival> scratch_;
};

}  // namespace sta
