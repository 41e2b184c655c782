// set_disable_timing: an object whose timing arcs are cut, with the pins of
// its library cell between which the arcs run (empty: every arc).
#pragma once

#include <string>

#include "sdc/SdcObject.h"

namespace sta::sdc {

struct DisabledTiming {
  SdcObject object;  // a cell, a pin, a port, a library cell or a library pin
  std::string from;  // -from: an input pin name of the cell's library cell
  std::string to;    // -to: an output pin name
};

}  // namespace sta::sdc
