// What the store keeps on one hierarchical cell: the wire-load model of
// its level (set_wire_load_model on the cell).
#pragma once

#include <string>

namespace cdm {
class WireLoad;
}

namespace sta::sdc {

struct CellConstraints {
  std::string name;                        // the cell's full name, to find it again
  const cdm::WireLoad* wire_load[2] = {};  // min, max
};

}  // namespace sta::sdc
