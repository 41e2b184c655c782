// The paths to a path end, worst first: found backward from the end, each
// partial path ranked by the arrival at its head plus the delay behind it,
// which is exact for the best completion, so paths come out in order of
// their arrival (latest first for setup, earliest first for hold).
#pragma once

#include <cstdint>
#include <vector>

namespace sta {

class ArrivalSearch;
struct ArrivalSeed;
struct PathEnd;

// One point of a path: a vertex, the edge of the signal there and its
// arrival, and the edge of the graph it was reached by.
struct PathStage {
  static constexpr uint32_t kNoEdge = ~0u;
  uint32_t vertex = 0;
  uint32_t tag = 0;
  uint8_t rf = 0;
  uint32_t edge = kNoEdge;  // into this stage; none for the first
  float arrival = 0.0f;
  float delay = 0.0f;  // from the stage before (or the start's own part)
};

struct TimingPath {
  const PathEnd* end = nullptr;
  // A register launches the path: its clock pin and the clock's arrival
  // there (the first stage is then the clock pin).
  bool from_register = false;
  float clock_arrival = 0.0f;
  // Else it starts at a seed (input delay, unclocked input, clock source).
  const ArrivalSeed* seed = nullptr;
  std::vector<PathStage> stages;  // from the start to the end
  // The path's own arrival at the end and its slack against the end's
  // required time (the end holds those of its worst path).
  float arrival = 0.0f;
  float slack = 0.0f;
};

// Up to `count` paths to `end`, worst first.
std::vector<TimingPath> EnumeratePaths(ArrivalSearch& search, const PathEnd& end, int count);

}  // namespace sta
