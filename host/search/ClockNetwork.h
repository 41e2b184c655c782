// The clock networks: the vertices on the way from each clock's sources,
// through wires and combinational arcs (not through registers, constants or
// disabled arcs), to the clock pins of registers; and whether a clock is
// ideal there. A branch that reaches only data pins is not part of it.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

namespace sta {

namespace sdc {
class Clock;
}

class Sensitization;
class TimingGraph;

class ClockNetwork {
 public:
  // `clocks` in the order the store defines them; a clock's index in it is
  // its number here.
  void Build(const TimingGraph& graph, const std::vector<sdc::Clock*>& clocks,
             const Sensitization& sensitization);

  // The numbers of the clocks that reach the vertex, ascending; empty off
  // every network.
  const std::vector<uint32_t>& ClocksAt(uint32_t vertex) const {
    return sets_[vertex < set_of_.size() ? set_of_[vertex] : 0];
  }
  bool InNetwork(uint32_t vertex) const { return !ClocksAt(vertex).empty(); }
  // Some ideal (not propagated) clock reaches the vertex.
  bool IsIdeal(uint32_t vertex) const;
  // The transition of the ideal clocks at the vertex (set_clock_transition,
  // else 0): the largest for max, the smallest for min. False off every
  // ideal network.
  bool IdealSlew(uint32_t vertex, int rf, int mm, float& slew) const;
  // The source vertices of clock `clock`.
  const std::vector<uint32_t>& Sources(uint32_t clock) const { return sources_[clock]; }
  const std::vector<sdc::Clock*>& Clocks() const { return clocks_; }

 private:
  uint32_t AddClock(uint32_t set, uint32_t clock);

  std::vector<sdc::Clock*> clocks_;
  std::vector<std::vector<uint32_t>> sources_;
  std::vector<uint32_t> set_of_;             // per vertex: index into sets_
  std::vector<std::vector<uint32_t>> sets_;  // 0 is the empty set
  std::map<std::vector<uint32_t>, uint32_t> set_index_;
  std::vector<bool> ideal_;  // per clock
};

}  // namespace sta
