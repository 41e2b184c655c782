#include "search/Timer.h"

#include "db/Netlist.h"
#include "dcalc/DelayCalcInputs.h"
#include "dcalc/LumpedCapDelayCalc.h"
#include "graph/GraphBuilder.h"
#include "graph/Levelizer.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/msg/Msg.h"

namespace sta {

Timer::Timer(cdm::Root* root)
    : root_(root),
      calculator_(std::make_unique<LumpedCapDelayCalc>()),
      inputs_(std::make_unique<DelayCalcInputs>()) {}

Timer::~Timer() = default;

cdm::Design* Timer::Design() const {
  cdm::Design* design = root_->GetCurrentDesign();
  if (!design || !design->GetNetlist() || !design->GetNetlist()->IsLinked()) return nullptr;
  return design;
}

TimingGraph* Timer::EnsureGraph() {
  cdm::Design* design = Design();
  if (!design) {
    graph_.reset();
    graph_design_ = nullptr;
    return nullptr;
  }
  if (!graph_ || graph_design_ != design || graph_generation_ != root_->ChangeGeneration()) {
    BuildGraph(design);
  }
  return graph_.get();
}

void Timer::BuildGraph(cdm::Design* design) {
  graph_ = std::make_unique<TimingGraph>();
  BuildTimingGraph(design, *graph_);
  ReportLoops(LevelizeGraph(*graph_));
  graph_design_ = design;
  graph_generation_ = root_->ChangeGeneration();
  timed_generation_ = 0;
}

void Timer::ReportLoops(const std::vector<CutLoop>& loops) const {
  for (const CutLoop& loop : loops) {
    const Edge& edge = graph_->Edges()[loop.edge];
    std::string pins;
    for (uint32_t v : loop.vertices) pins += (pins.empty() ? "" : " ") + graph_->VertexName(v);
    const std::string from = graph_->VertexName(edge.from);
    const std::string to = graph_->VertexName(edge.to);
    msg::ReportMsg(STA_001, from.c_str(), to.c_str(), pins.c_str());
  }
}

bool Timer::Update(bool full) {
  TimingGraph* graph = EnsureGraph();
  if (!graph) return false;
  const uint64_t generation = root_->ChangeGeneration();
  if (!full && timed_generation_ == generation) return true;
  delay_calc_.Run(*graph, *calculator_, *inputs_, root_->GetDefaultLiberty());
  timed_generation_ = generation;
  ++update_count_;
  return true;
}

}  // namespace sta
