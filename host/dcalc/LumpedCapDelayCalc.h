// The lumped-capacitance model: the driver sees the net's whole capacitance
// at its pin, and the wire itself takes no time.
#pragma once

#include "dcalc/ArcDelayCalc.h"

namespace sta {

class LumpedCapDelayCalc : public ArcDelayCalc {
 public:
  std::string Name() const override { return "lumped_cap"; }
  ArcTiming GateDelay(const cdm::LibTimingModel& model, float in_slew, const NetLoad& load,
                      const SlewScale& scale) const override;
  ArcTiming WireDelay(float driver_slew, const NetLoad& load) const override;
  ArcTiming DriveResistance(float ohms, const NetLoad& load) const override;
};

}  // namespace sta
