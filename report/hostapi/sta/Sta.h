// The timer of the current design: its graph and, behind it, delays,
// arrivals and checks. Reports reach it through TimerMgr.
#pragma once

#include <memory>

namespace cdm {
class Root;
}

namespace sta {

class Graph;
class Timer;

class Sta {
 public:
  explicit Sta(cdm::Root* root);
  ~Sta();
  Sta(const Sta&) = delete;
  Sta& operator=(const Sta&) = delete;

  // The graph of the current design, built when missing or when the
  // netlist changed since; null when there is no linked current design.
  Graph* ensureGraph();
  // The graph as it stands (null before the first build).
  Graph* graph() const;

  // The host's engine behind this face.
  Timer* timer() const { return timer_.get(); }

 private:
  std::unique_ptr<Timer> timer_;
};

}  // namespace sta
