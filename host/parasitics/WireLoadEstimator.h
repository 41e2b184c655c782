// Wire figures of nets from wire-load models (see WireLoadEstimator.cpp);
// registered with the database as its net wire estimator.
#pragma once

#include "hostapi/cdm/Selectors.h"

namespace cdm {
class Net;
class WireLoad;
}  // namespace cdm

namespace parasitics {

struct WireFigures {
  double length = 0.0;       // as the model writes lengths
  double capacitance = 0.0;  // F
  double resistance = 0.0;   // ohm
};

// The figures of a wire with `fanout` loads under `model`; zero without a
// model or loads.
WireFigures FiguresFor(const cdm::WireLoad* model, int fanout);

// The estimator the database calls from Net::NetCapAndRes.
void EstimateNetWire(const cdm::Net* net, int flat_loads, const cdm::MinMax* minmax,
                     float& wire_cap, float& resistance);

}  // namespace parasitics
