// What lies outside the design at a port: set_load (pin and wire
// capacitance, farads) and set_port_fanout_number.
#pragma once

#include <optional>

#include "hostapi/cdm/Selectors.h"

namespace sta::sdc {

class PortExtLoad {
 public:
  std::optional<float> getPinCap(const cdm::RiseFall* edge, const cdm::MinMax* minmax) const {
    return pin_load_.Value(edge, minmax);
  }
  std::optional<float> getWireCap(const cdm::RiseFall* edge, const cdm::MinMax* minmax) const {
    return wire_load_.Value(edge, minmax);
  }
  // The number of external fan-out points (set_port_fanout_number).
  std::optional<float> getFanout(const cdm::MinMax* minmax) const {
    return fanout_[minmax->index()];
  }
  // The two records: pin load first, then wire load.
  const cdm::RiseFallMinMax& getPinLoads() const { return pin_load_; }
  const cdm::RiseFallMinMax& getWireLoads() const { return wire_load_; }

 private:
  friend class SdcStore;  // the store fills the fields
  cdm::RiseFallMinMax pin_load_;
  cdm::RiseFallMinMax wire_load_;
  std::optional<float> fanout_[2];
};

}  // namespace sta::sdc
