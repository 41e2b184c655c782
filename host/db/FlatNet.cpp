#include "db/FlatNet.h"

#include <algorithm>
#include <vector>

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
  WalkFlatSegments(net, [&](const Net* segment) {
    for (Pin* pin : segment->Pins())
      if (!CrossesBoundary(pin) || with_hierarchical) visit(pin);
  });
}

}  // namespace cdm
