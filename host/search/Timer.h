// The host's timing engine behind sta::Sta: the graph of the current
// design, the constants and clock networks over it, delay calculation, and
// what all of it was computed from, so that an update with nothing changed
// does nothing and a change of constraints alone keeps the graph.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "dcalc/GraphDelayCalc.h"
#include "graph/TimingGraph.h"
#include "search/ClockNetwork.h"
#include "search/CycleAccounting.h"
#include "search/Sensitization.h"
#include "search/TimingSearch.h"

namespace cdm {
class Design;
class Elaboration;
class Root;
}  // namespace cdm

namespace sta {

namespace sdc {
class SdcStore;
}

class ArcDelayCalc;
class TimingInputs;
struct CutLoop;

class Timer {
 public:
  explicit Timer(cdm::Root* root);
  ~Timer();

  cdm::Root* Root() const { return root_; }
  // The current design when it is linked and elaborated, else null.
  cdm::Design* Design() const;
  // The constraint store of the current design, brought up to date; null
  // without a current design.
  sdc::SdcStore* Store() const;

  // The graph of the current design, rebuilt when the netlist changed.
  TimingGraph* EnsureGraph();
  TimingGraph* Graph() const { return graph_.get(); }

  // Brings delays, slews and arrivals up to date; `full` recomputes even
  // when nothing changed. False when there is nothing to time.
  bool Update(bool full);
  // How many times Update has recomputed (for tests and benchmarks).
  uint64_t UpdateCount() const { return update_count_; }
  uint64_t GraphBuildCount() const { return graph_build_count_; }

  const GraphDelayCalc& DelayCalc() const { return delay_calc_; }
  const ArcDelayCalc& Calculator() const { return *calculator_; }
  const Sensitization& Constants() const { return sensitization_; }
  const ClockNetwork& Clocks() const { return clock_network_; }
  // The clocks of the last update, in the store's order: their numbers are
  // those of tags and clock edges.
  const std::vector<sdc::Clock*>& ClockList() const { return clocks_; }
  CycleAccounting& Cycles() { return cycles_; }
  // The search of the last update.
  TimingSearch& Search() { return search_; }
  // What a search over the timed graph starts from (exceptions unset).
  SearchContext Context();

 private:
  // What a result was computed from: the database, the constraints and the
  // parasitics, each by its change generation.
  struct Stamp {
    uint64_t database = 0;
    uint64_t constraints = 0;
    uint64_t parasitics = 0;
    bool operator==(const Stamp& other) const {
      return database == other.database && constraints == other.constraints &&
             parasitics == other.parasitics;
    }
  };
  Stamp Current() const;
  void BuildGraph(const cdm::Elaboration& elaboration);
  void ReportLoops(const std::vector<CutLoop>& loops) const;

  cdm::Root* root_;
  std::unique_ptr<TimingGraph> graph_;
  uint64_t graph_generation_ = 0;
  Stamp timed_;
  bool timed_valid_ = false;
  uint64_t update_count_ = 0;
  uint64_t graph_build_count_ = 0;
  std::unique_ptr<ArcDelayCalc> calculator_;
  Sensitization sensitization_;
  ClockNetwork clock_network_;
  GraphDelayCalc delay_calc_;
  std::vector<sdc::Clock*> clocks_;
  CycleAccounting cycles_;
  TimingSearch search_;
};

}  // namespace sta
