// The host's timing engine behind sta::Sta: the graph of the current
// design, delay calculation over it, and what it was computed from, so that
// an update with nothing changed does nothing.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "dcalc/GraphDelayCalc.h"
#include "graph/TimingGraph.h"

namespace cdm {
class Design;
class Root;
}  // namespace cdm

namespace sta {

class ArcDelayCalc;
class DelayCalcInputs;
struct CutLoop;

class Timer {
 public:
  explicit Timer(cdm::Root* root);
  ~Timer();

  cdm::Root* Root() const { return root_; }
  // The current design when it is linked, else null.
  cdm::Design* Design() const;

  // The graph of the current design, rebuilt when the netlist changed.
  TimingGraph* EnsureGraph();
  TimingGraph* Graph() const { return graph_.get(); }

  // Brings delays and slews up to date; `full` recomputes even when nothing
  // changed. False when there is nothing to time.
  bool Update(bool full);
  // How many times Update has recomputed (for tests and benchmarks).
  uint64_t UpdateCount() const { return update_count_; }

  const GraphDelayCalc& DelayCalc() const { return delay_calc_; }
  const ArcDelayCalc& Calculator() const { return *calculator_; }

 private:
  void BuildGraph(cdm::Design* design);
  void ReportLoops(const std::vector<CutLoop>& loops) const;

  cdm::Root* root_;
  std::unique_ptr<TimingGraph> graph_;
  const cdm::Design* graph_design_ = nullptr;
  uint64_t graph_generation_ = 0;
  uint64_t timed_generation_ = 0;
  uint64_t update_count_ = 0;
  std::unique_ptr<ArcDelayCalc> calculator_;
  std::unique_ptr<DelayCalcInputs> inputs_;
  GraphDelayCalc delay_calc_;
};

}  // namespace sta
