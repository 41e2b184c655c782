// What the store keeps on one net: set_load on the net.
#pragma once

#include <optional>
#include <string>

namespace sta::sdc {

struct NetConstraints {
  std::string name;                  // the net's full name, to find it again
  std::optional<float> wire_cap[2];  // farads, min and max
  bool subtract_pin_load = false;    // -subtract_pin_load
};

}  // namespace sta::sdc
