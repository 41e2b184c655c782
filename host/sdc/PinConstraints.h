// What the store keeps on one pin: a top port's pin or a cell pin.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "hostapi/cdm/LogicValue.h"
#include "hostapi/cdm/Selectors.h"
#include "hostapi/sta/PortDelay.h"

namespace sta::sdc {

struct PinConstraints {
  std::string name;  // the pin's full name, to find it again
  // set_input_delay / set_output_delay, in the order set; the sets hold
  // the same objects as the owning vectors.
  std::vector<std::unique_ptr<InputDelay>> input_owned;
  InputDelaySet input_delays;
  std::vector<std::unique_ptr<OutputDelay>> output_owned;
  OutputDelaySet output_delays;
  std::optional<cdm::LogicValue> case_value;  // set_case_analysis
  bool ideal_source = false;                  // set_ideal_network
  bool ideal_no_propagate = false;            // set_ideal_network -no_propagate
  bool dont_touch_network = false;            // set_dont_touch_network
  bool dont_touch_no_propagate = false;       // set_dont_touch_network -no_propagate
  bool propagated_clock = false;              // set_propagated_clock on the pin
  // set_clock_uncertainty on the pin: min is hold, max is setup.
  std::optional<float> clock_uncertainty[2];
  // set_clock_latency on the pin: network, then -source.
  cdm::RiseFallMinMax clock_latency[2];
};

}  // namespace sta::sdc
