// Where the analysis reads each pin's activity in report_power: the
// activity store's figures of the pin's flat net.
#pragma once

#include "power/CellPower.h"

namespace power {

class ActivityStore;

// `store` must be up to date and stay alive while the result is used.
ActivityOf DesignActivity(const ActivityStore& store);

}  // namespace power
