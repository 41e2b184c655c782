// The switching activity of one net.
#pragma once

#include "power/ActivityOrigin.h"

namespace power {

struct NetActivity {
  double rate = 0.0;         // transitions per second
  double probability = 0.0;  // that the net is at 1
  ActivityOrigin origin = ActivityOrigin::kUnknown;
  // The rate adds up the transitions of more than one switching input, as
  // if they never fell together: it counts changes that cancel within a
  // clock period, so it says more than how often the settled value moves.
  bool summed = false;
};

}  // namespace power
