// Builds the timing graph of a linked design: a vertex per leaf pin and top
// port pin, an edge per timing arc set of each library cell and per
// driver-to-load pair of each flat net.
#pragma once

namespace cdm {
class Design;
}

namespace sta {

class TimingGraph;

// Replaces the contents of `graph` with the graph of `design`; levels are
// left to the Levelizer.
void BuildTimingGraph(const cdm::Design* design, TimingGraph& graph);

}  // namespace sta
