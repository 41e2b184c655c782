// What the store keeps on the design as a whole.
#pragma once

#include <optional>
#include <string>

#include "hostapi/cdm/LibEnums.h"

namespace cdm {
class LibertyLib;
class OperatingConditions;
class WireLoad;
}  // namespace cdm

namespace sta::sdc {

struct DesignConstraints {
  // set_max_transition, set_max_capacitance, set_min_capacitance,
  // set_max_fanout and set_max_area on the design (SI; area as the library
  // writes it).
  std::optional<float> max_transition;
  std::optional<float> max_capacitance;
  std::optional<float> min_capacitance;
  std::optional<float> max_fanout;
  std::optional<float> max_area;
  // set_wire_load_model on the design: min, max.
  const cdm::WireLoad* wire_load[2] = {};
  std::optional<cdm::WireLoadMode> wire_load_mode;
  // set_wire_load_selection_group: the group's name and library, min, max.
  std::string selection_group[2];
  const cdm::LibertyLib* selection_library[2] = {};
  // set_operating_conditions: min, max, with the library holding them.
  const cdm::OperatingConditions* operating_conditions[2] = {};
  const cdm::LibertyLib* operating_library[2] = {};
};

}  // namespace sta::sdc
