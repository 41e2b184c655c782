// What delay calculation needs from the constraints and the parasitics:
// the timer fills it in; the defaults stand for a design with none.
#pragma once

#include <cstdint>

namespace cdm {
class Pin;
}

namespace sta {

namespace sdc {
class DriveCell;
}

class DelayCalcInputs {
 public:
  virtual ~DelayCalcInputs() = default;

  // Capacitance outside the design on a top port (set_load, pin and wire
  // load together), F.
  virtual float PortLoad(const cdm::Pin* /*port_pin*/, int /*rf*/, int /*mm*/) const {
    return 0.0f;
  }
  // A top input's own transition (set_input_transition), when given.
  virtual bool InputSlew(const cdm::Pin* /*port_pin*/, int /*rf*/, int /*mm*/,
                         float& /*slew*/) const {
    return false;
  }
  // set_drive on a top input: its drive resistance (ohm), when given.
  virtual bool DriveResistance(const cdm::Pin* /*port_pin*/, int /*rf*/, int /*mm*/,
                               float& /*ohms*/) const {
    return false;
  }
  // set_driving_cell on a top input; null when none.
  virtual const sdc::DriveCell* DrivingCell(const cdm::Pin* /*port_pin*/, int /*rf*/,
                                            int /*mm*/) const {
    return nullptr;
  }
  // The transition of an ideal clock at a vertex of its network.
  virtual bool IdealClockSlew(uint32_t /*vertex*/, int /*rf*/, int /*mm*/, float& /*slew*/) const {
    return false;
  }
  // Wire capacitance (F) and resistance (ohm) of the net `driver` drives.
  // `whole` says that `cap` is the net's whole capacitance, pins included
  // (set_load -subtract_pin_load on the net).
  virtual void WireParasitics(const cdm::Pin* driver, int mm, float& cap, float& res,
                              bool& whole) const;
  // An edge that constants or set_disable_timing turn off.
  virtual bool EdgeDisabled(uint32_t /*edge*/) const { return false; }
};

}  // namespace sta
