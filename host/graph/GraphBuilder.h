// Builds the timing graph of the elaborated design: a vertex per timing
// vertex of the database (two for an inout pin), an edge per timing arc set
// of each library cell and per driver-to-load pair of each flat net.
#pragma once

#include <cstdint>

namespace cdm {
class Elaboration;
class Pin;
}  // namespace cdm

namespace sta {

class TimingGraph;

// Replaces the contents of `graph` with the graph of `elaboration`; levels
// are left to the Levelizer.
void BuildTimingGraph(const cdm::Elaboration& elaboration, TimingGraph& graph);

// The vertex at which arcs and wires leave a pin (its driving half) and the
// one at which they arrive (its loading half); they differ for inout pins.
uint32_t DriverVertex(const cdm::Pin* pin);
uint32_t LoadVertex(const cdm::Pin* pin);

}  // namespace sta
