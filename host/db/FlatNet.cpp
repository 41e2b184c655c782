#include "db/FlatNet.h"

#include <algorithm>

#include "db/Elaboration.h"
#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Port.h"

namespace cdm {
namespace {

// The net on the other side of a hierarchical boundary at `pin`, or null.
const Net* AcrossBoundary(const Pin* pin) {
  if (Cell* cell = pin->GetCell()) {
    // A pin of a hierarchical cell: the port pin inside, same port index.
    Netlist* child = cell->GetChildNetlist();
    if (!child) return nullptr;
    Pin* inner = child->PortPin(pin->GetPort()->GetIndex());
    return inner ? inner->GetNet() : nullptr;
  }
  if (pin->IsTopPortPin()) return nullptr;
  // A port pin below the top: the instance's pin of the same port outside.
  Netlist* netlist = pin->GetNetlist();
  Cell* instance = netlist ? netlist->GetInstance() : nullptr;
  if (!instance) return nullptr;
  Pin* outer = instance->GetPin(pin->GetPort()->GetIndex());
  return outer ? outer->GetNet() : nullptr;
}

bool CrossesBoundary(const Pin* pin) {
  if (pin->IsTopPortPin()) return false;
  return pin->IsPortPin() || (pin->GetCell() && pin->GetCell()->IsHierarchical());
}

// The elaboration that holds `net`'s flat net, or null.
const Elaboration* Elaborated(const Net* net) {
  if (!net->FlatNetId()) return nullptr;
  return net->GetNetlist()->GetElaboration();
}

template <class PinPtr>
void Collect(const Net* net, HierarchyMode mode, bool drivers, const Pin* skip,
             std::vector<PinPtr>& pins) {
  auto take = [&](Pin* pin) {
    if (pin == skip) return;
    if (drivers ? pin->IsNetDriver() : pin->IsNetLoad()) pins.push_back(pin);
  };
  if (mode == kHierLevel) {
    for (Pin* pin : net->Pins()) take(pin);
    return;
  }
  const Elaboration* elaboration = Elaborated(net);
  if (!elaboration) {
    WalkFlatNet(net, false, take);
    return;
  }
  uint32_t id = net->FlatNetId();
  const FlatNetRecord& record = elaboration->FlatNet(id);
  const uint32_t* first = drivers ? elaboration->FlatNetDrivers(id) : elaboration->FlatNetLoads(id);
  uint32_t count = drivers ? record.driver_count : record.load_count;
  pins.reserve(pins.size() + count);
  for (uint32_t i = 0; i < count; ++i) {
    Pin* pin = elaboration->VertexPin(first[i]);
    if (pin != skip) pins.push_back(pin);
  }
}

}  // namespace

void WalkFlatSegments(const Net* net, const std::function<void(const Net*)>& visit) {
  if (!net) return;
  std::vector<const Net*> seen{net};
  for (size_t next = 0; next < seen.size(); ++next) {
    const Net* segment = seen[next];
    visit(segment);
    for (const Pin* pin : segment->Pins()) {
      if (!CrossesBoundary(pin)) continue;
      const Net* other = AcrossBoundary(pin);
      if (other && std::find(seen.begin(), seen.end(), other) == seen.end()) seen.push_back(other);
    }
  }
}

void WalkFlatNet(const Net* net, bool with_hierarchical, const std::function<void(Pin*)>& visit) {
  if (!net) return;
  const Elaboration* elaboration = Elaborated(net);
  if (with_hierarchical || !elaboration) {
    WalkFlatSegments(net, [&](const Net* segment) {
      for (Pin* pin : segment->Pins())
        if (!CrossesBoundary(pin) || with_hierarchical) visit(pin);
    });
    return;
  }
  // Drivers and loads merged back into creation order; an inout pin stands
  // in both lists (at two consecutive vertices) and is visited once.
  uint32_t id = net->FlatNetId();
  const FlatNetRecord& record = elaboration->FlatNet(id);
  const uint32_t* drivers = elaboration->FlatNetDrivers(id);
  const uint32_t* loads = elaboration->FlatNetLoads(id);
  uint32_t d = 0, l = 0;
  Pin* last = nullptr;
  while (d < record.driver_count || l < record.load_count) {
    bool take_driver = l == record.load_count || (d < record.driver_count && drivers[d] < loads[l]);
    uint32_t vertex = take_driver ? drivers[d++] : loads[l++];
    Pin* pin = elaboration->VertexPin(vertex);
    if (pin != last) visit(pin);
    last = pin;
  }
}

void CollectNetPins(const Net* net, HierarchyMode mode, bool drivers, const Pin* skip,
                    std::vector<const Pin*>& pins) {
  Collect(net, mode, drivers, skip, pins);
}

void CollectNetPins(const Net* net, HierarchyMode mode, bool drivers, const Pin* skip,
                    std::vector<Pin*>& pins) {
  Collect(net, mode, drivers, skip, pins);
}

int FlatLoadCount(const Net* net) {
  int count = 0;
  const Elaboration* elaboration = Elaborated(net);
  if (!elaboration) {
    WalkFlatNet(net, false, [&](Pin* pin) {
      if (pin->IsNetLoad() && !pin->IsNetDriver()) ++count;
    });
    return count;
  }
  uint32_t id = net->FlatNetId();
  const uint32_t* loads = elaboration->FlatNetLoads(id);
  for (uint32_t i = 0; i < elaboration->FlatNet(id).load_count; ++i)
    if (!elaboration->VertexPin(loads[i])->IsNetDriver()) ++count;
  return count;
}

}  // namespace cdm
