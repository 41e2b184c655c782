// What a library timing arc set means to the timer: its role and which
// input edges lead to which output edges.
#pragma once

#include <cstdint>

#include "graph/Edge.h"

namespace cdm {
class LibTimingArcSet;
}

namespace sta {

EdgeRole ArcRole(const cdm::LibTimingArcSet& arc_set);

// The ArcBit set of the arc set: from its timing type, its sense (derived
// from the output's function when the library leaves it out), and the
// edges for which the library gives a table.
uint8_t ArcTransitions(const cdm::LibTimingArcSet& arc_set, EdgeRole role);

// The clock edge (0 rise, 1 fall) a check or a register launch acts on.
int ClockEdgeOf(const cdm::LibTimingArcSet& arc_set);

}  // namespace sta
