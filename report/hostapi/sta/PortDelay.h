// set_input_delay and set_output_delay: a delay of a port (or pin) relative
// to a clock edge. Delays are in seconds.
#pragma once

#include <string>
#include <vector>

#include "hostapi/cdm/Selectors.h"
#include "hostapi/sta/Clock.h"

namespace cdm {
class Pin;
}

namespace sta::sdc {

class PortDelay {
 public:
  virtual ~PortDelay() = default;

  // The clock edge the delay is relative to: the clock's rising edge, or
  // its falling edge with -clock_fall. Null for a delay set without -clock.
  const ClockEdge* getClockEdge() const { return clock_edge_; }
  // The clock of that edge; null for a delay set without -clock.
  const Clock* getClock() const { return clock_edge_ ? clock_edge_->getClock() : nullptr; }
  // -reference_pin; null when not given.
  cdm::Pin* getRefPin() const { return ref_pin_; }
  // The pin the delay is set on (a top port's pin or a cell pin).
  cdm::Pin* getPin() const { return pin_; }
  // The delay per edge of the data and min/max; unset where not given.
  const cdm::RiseFallMinMax& getDelays() const { return delays_; }
  // -network_latency_included and -source_latency_included.
  bool getNetworkLatencyIncluded() const { return network_latency_included_; }
  bool getSourceLatencyIncluded() const { return source_latency_included_; }

 protected:
  PortDelay() = default;

 private:
  friend class SdcStore;  // the store fills the fields
  const ClockEdge* clock_edge_ = nullptr;
  cdm::Pin* ref_pin_ = nullptr;
  cdm::Pin* pin_ = nullptr;
  cdm::RiseFallMinMax delays_;
  bool network_latency_included_ = false;
  bool source_latency_included_ = false;
  std::string ref_pin_name_;  // to find the pin again after the netlist changed
};

class InputDelay : public PortDelay {};
class OutputDelay : public PortDelay {};

// The delays of one pin, in the order they were set.
using InputDelaySet = std::vector<InputDelay*>;
using OutputDelaySet = std::vector<OutputDelay*>;

}  // namespace sta::sdc
