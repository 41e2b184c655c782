// What delay calculation reads of the constraints, the clock networks and
// the constants: the store's loads, input transitions, drives and driving
// cells, the ideal clocks' transitions and the arcs that are off.
#pragma once

#include "dcalc/DelayCalcInputs.h"

namespace sta {

namespace sdc {
class SdcStore;
}

class ClockNetwork;
class Sensitization;

class TimingInputs : public DelayCalcInputs {
 public:
  // `store` may be null (no constraints); the others must outlive the run.
  TimingInputs(sdc::SdcStore* store, const ClockNetwork& clocks, const Sensitization& sensitization)
      : store_(store), clocks_(clocks), sensitization_(sensitization) {}

  float PortLoad(const cdm::Pin* port_pin, int rf, int mm) const override;
  bool InputSlew(const cdm::Pin* port_pin, int rf, int mm, float& slew) const override;
  bool DriveResistance(const cdm::Pin* port_pin, int rf, int mm, float& ohms) const override;
  const sdc::DriveCell* DrivingCell(const cdm::Pin* port_pin, int rf, int mm) const override;
  bool IdealClockSlew(uint32_t vertex, int rf, int mm, float& slew) const override;
  bool EdgeDisabled(uint32_t edge) const override;
  // set_load on the driver's net replaces the wire-load estimate.
  void WireParasitics(const cdm::Pin* driver, int mm, float& cap, float& res,
                      bool& whole) const override;

 private:
  sdc::SdcStore* store_;
  const ClockNetwork& clocks_;
  const Sensitization& sensitization_;
};

}  // namespace sta
