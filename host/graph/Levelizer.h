// Levels of the timing graph, with combinational loops cut first.
#pragma once

#include <cstdint>
#include <vector>

namespace sta {

class TimingGraph;

// One loop that was cut: its vertices in order along the loop, starting at
// the sink of the cut edge and ending at its source.
struct CutLoop {
  uint32_t edge;
  std::vector<uint32_t> vertices;
};

// Cuts every combinational loop at one edge (a depth-first walk in vertex
// order marks the edge that closes each loop it meets, so the same netlist
// is always cut at the same edges), then gives each vertex its level: 0
// with no fan-in, else one more than its highest fan-in. Fills the graph's
// level order. Returns the loops cut.
std::vector<CutLoop> LevelizeGraph(TimingGraph& graph);

}  // namespace sta
