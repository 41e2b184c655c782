// The switching activity of one net.
#pragma once

#include "power/ActivityOrigin.h"

namespace power {

struct NetActivity {
  double rate = 0.0;         // transitions per second
  double probability = 0.0;  // that the net is at 1
  ActivityOrigin origin = ActivityOrigin::kUnknown;
};

}  // namespace power
