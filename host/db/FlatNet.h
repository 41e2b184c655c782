// The flat net: a net followed through hierarchical pins into the netlists
// below and through port pins into the netlists above.
#pragma once

#include <functional>

namespace cdm {

class Net;
class Pin;

// Calls `visit` for every leaf pin and top port pin of the flat net that
// `net` is a segment of, and with `with_hierarchical` also for every
// hierarchical pin and lower port pin met on the way. Each segment is
// visited once; pins in segment order, then connection order.
void WalkFlatNet(const Net* net, bool with_hierarchical, const std::function<void(Pin*)>& visit);

// Every segment of the flat net, `net` first.
void WalkFlatSegments(const Net* net, const std::function<void(const Net*)>& visit);

}  // namespace cdm
