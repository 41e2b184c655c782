// Who estimates a net's wire capacitance and resistance: the parasitics
// layer registers itself here, so that the database knows no constraint
// store. Without one, nets have no wire figures.
#pragma once

#include "hostapi/cdm/Selectors.h"

namespace cdm {

class Net;

// Wire capacitance (F) and resistance (ohm) of `net`, whose flat net has
// `flat_loads` load pins.
using NetWireEstimator = void (*)(const Net* net, int flat_loads, const MinMax* minmax,
                                  float& wire_cap, float& resistance);
void SetNetWireEstimator(NetWireEstimator estimator);

}  // namespace cdm
