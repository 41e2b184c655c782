#include "hostapi/sta/Sta.h"

#include "search/Timer.h"

namespace sta {

Sta::Sta(cdm::Root* root) : timer_(std::make_unique<Timer>(root)) {}

Sta::~Sta() = default;

Graph* Sta::ensureGraph() {
  return timer_->EnsureGraph();
}

Graph* Sta::graph() const {
  return timer_->Graph();
}

}  // namespace sta
