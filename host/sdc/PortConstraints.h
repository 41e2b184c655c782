// What the store keeps on one top port of the design.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "hostapi/cdm/LogicValue.h"
#include "hostapi/sta/InputDrive.h"
#include "hostapi/sta/PortExtLoad.h"

namespace cdm {
class WireLoad;
}

namespace sta::sdc {

struct PortConstraints {
  std::string name;                   // the port's name, to find it again
  std::unique_ptr<InputDrive> drive;  // set_drive, set_input_transition, set_driving_cell
  std::unique_ptr<PortExtLoad> load;  // set_load, set_port_fanout_number
  // Design-rule limits on the port (SI).
  std::optional<float> max_transition;
  std::optional<float> max_capacitance;
  std::optional<float> min_capacitance;
  std::optional<float> max_fanout;
  std::optional<float> fanout_load;        // set_fanout_load
  std::optional<cdm::LogicValue> logic;    // set_logic_zero, set_logic_one, set_logic_dc
  const cdm::WireLoad* wire_load[2] = {};  // set_wire_load_model on the port: min, max
};

}  // namespace sta::sdc
