// What delay calculation needs from the constraints and the parasitics:
// the timer fills it in; the defaults stand for a design with none.
#pragma once

#include <cstdint>

namespace cdm {
class Pin;
}

namespace sta {

class DelayCalcInputs {
 public:
  virtual ~DelayCalcInputs() = default;

  // Capacitance outside the design on a top port (set_load), F.
  virtual float PortLoad(const cdm::Pin* /*port_pin*/, int /*rf*/, int /*mm*/) const {
    return 0.0f;
  }
  // A top input's own transition (set_input_transition), when given.
  virtual bool InputSlew(const cdm::Pin* /*port_pin*/, int /*rf*/, int /*mm*/,
                         float& /*slew*/) const {
    return false;
  }
  // The driving cell of a top input (set_driving_cell): its delay and
  // output slew into `load` F; false when the port has none.
  virtual bool DrivingCell(const cdm::Pin* /*port_pin*/, int /*rf*/, int /*mm*/, float /*load*/,
                           float& /*delay*/, float& /*slew*/) const {
    return false;
  }
  // The transition of an ideal clock at a vertex of its network.
  virtual bool IdealClockSlew(uint32_t /*vertex*/, int /*rf*/, int /*mm*/, float& /*slew*/) const {
    return false;
  }
  // Wire capacitance (F) and resistance (ohm) of the net `driver` drives.
  virtual void WireParasitics(const cdm::Pin* driver, int mm, float& cap, float& res) const;
  // An edge that constants or set_disable_timing turn off.
  virtual bool EdgeDisabled(uint32_t /*edge*/) const { return false; }
};

}  // namespace sta
