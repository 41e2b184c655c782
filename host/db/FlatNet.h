// The flat net of a net: in the elaborated design, the stored record of
// its flat net (drivers and loads, each in creation order); for a net of a
// definition outside it, a walk of the net's own level.
#pragma once

#include <functional>
#include <vector>

#include "hostapi/cdm/Selectors.h"

namespace cdm {

class Net;
class Pin;

// Calls `visit` for every leaf pin and top port pin of the flat net of
// `net`, once each, in creation order. With `with_hierarchical` also for
// every hierarchical pin and lower port pin met on the way (segment by
// segment, `net`'s own first).
void WalkFlatNet(const Net* net, bool with_hierarchical, const std::function<void(Pin*)>& visit);

// Every segment of the flat net, `net` first.
void WalkFlatSegments(const Net* net, const std::function<void(const Net*)>& visit);

// The drivers (or loads) of `net`, `skip` left out: at its level (mode 0)
// or of its flat net (else).
void CollectNetPins(const Net* net, HierarchyMode mode, bool drivers, const Pin* skip,
                    std::vector<const Pin*>& pins);
void CollectNetPins(const Net* net, HierarchyMode mode, bool drivers, const Pin* skip,
                    std::vector<Pin*>& pins);

// Flat loads of the net that do not also drive it.
int FlatLoadCount(const Net* net);

}  // namespace cdm
