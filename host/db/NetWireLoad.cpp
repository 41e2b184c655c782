// The wire figures of a net: from the estimator the parasitics layer
// registers (the database knows no constraint store).
#include "db/FlatNet.h"
#include "db/NetWireEstimator.h"
#include "hostapi/cdm/Net.h"

namespace cdm {
namespace {

NetWireEstimator net_wire_estimator = nullptr;

}  // namespace

void SetNetWireEstimator(NetWireEstimator estimator) {
  net_wire_estimator = estimator;
}

void Net::NetCapAndRes(const OperatingConditions*, float& wire_cap, float& resistance,
                       const MinMax* minmax, HierarchyMode) const {
  wire_cap = 0.0f;
  resistance = 0.0f;
  if (!net_wire_estimator) return;
  const int fanout = FlatLoadCount(this);
  if (fanout == 0) return;
  net_wire_estimator(this, fanout, minmax ? minmax : MinMax::max_, wire_cap, resistance);
}

}  // namespace cdm
