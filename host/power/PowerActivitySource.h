// Where the analysis reads each pin's activity in report_power: the
// timer's view of the design (clock networks and logic constants) with
// the default of every other net.
#pragma once

#include "power/CellPower.h"

namespace sta {
class Timer;
}

namespace power {

// Clock networks toggle twice a period of their fastest clock, with
// probability one half; constant nets never toggle; every other net
// toggles 0.1 times a period of the fastest clock, with probability one
// half. `timer` must stay alive and up to date while the result is used.
ActivityOf DesignActivity(const sta::Timer& timer);

}  // namespace power
