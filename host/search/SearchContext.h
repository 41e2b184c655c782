// What the arrival search and the checks read: the graph with its delays,
// constants and clock networks, the constraints, the clocks' edge times and
// the exceptions. The timer fills it in for one update.
#pragma once

#include <vector>

namespace cdm {
class Design;
}

namespace sta {

namespace sdc {
class Clock;
class SdcStore;
}  // namespace sdc

class ClockNetwork;
class CycleAccounting;
class ExceptionPaths;
class GraphDelayCalc;
class Sensitization;
class TimingGraph;

struct SearchContext {
  const TimingGraph* graph = nullptr;
  const GraphDelayCalc* delays = nullptr;
  const Sensitization* constants = nullptr;
  const ClockNetwork* clock_network = nullptr;
  sdc::SdcStore* store = nullptr;  // null without constraints
  const cdm::Design* design = nullptr;
  const std::vector<sdc::Clock*>* clocks = nullptr;
  CycleAccounting* cycles = nullptr;
  ExceptionPaths* exceptions = nullptr;
};

}  // namespace sta
