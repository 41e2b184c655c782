// Values of library lookup tables between and beyond their index points.
#pragma once

namespace cdm {
class LibTable;
}

namespace sta {

// What a table can be indexed by; each axis takes the value its variable
// names (slews in the table's library's own measure).
struct TableArgs {
  float in_slew = 0.0f;           // input_net_transition, input_transition_time
  float load = 0.0f;              // total_output_net_capacitance and its kin
  float related_slew = 0.0f;      // related_pin_transition
  float constrained_slew = 0.0f;  // constrained_pin_transition
};

// Linear in each axis between the two index points around the value, and
// along the end segment beyond either end (an axis of one point is flat).
float TableValue(const cdm::LibTable& table, const TableArgs& args);

}  // namespace sta
