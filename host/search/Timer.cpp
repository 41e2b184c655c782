#include "search/Timer.h"

#include "db/Elaboration.h"
#include "dcalc/LumpedCapDelayCalc.h"
#include "graph/GraphBuilder.h"
#include "graph/Levelizer.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/msg/Msg.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"
#include "parasitics/NetAnnotations.h"
#include "sdc/SdcStore.h"
#include "search/TimingInputs.h"

namespace sta {

Timer::Timer(cdm::Root* root) : root_(root), calculator_(std::make_unique<LumpedCapDelayCalc>()) {}

Timer::~Timer() = default;

cdm::Design* Timer::Design() const {
  cdm::Design* design = root_->GetCurrentDesign();
  const cdm::Elaboration* elaboration = root_->GetElaboration();
  if (!design || !elaboration || elaboration->Top() != design) return nullptr;
  return design;
}

sdc::SdcStore* Timer::Store() const {
  cdm::Design* design = Design();
  if (!design) return nullptr;
  sdc::SdcStore& store = sdc::SdcMain::getOrCreateSdcMgr(design)->store();
  return store.Sync() ? &store : nullptr;
}

TimingGraph* Timer::EnsureGraph() {
  if (!Design()) {
    graph_.reset();
    timed_valid_ = false;
    return nullptr;
  }
  if (!graph_ || graph_generation_ != root_->ChangeGeneration())
    BuildGraph(*root_->GetElaboration());
  return graph_.get();
}

void Timer::BuildGraph(const cdm::Elaboration& elaboration) {
  graph_ = std::make_unique<TimingGraph>();
  BuildTimingGraph(elaboration, *graph_);
  ReportLoops(LevelizeGraph(*graph_));
  graph_generation_ = root_->ChangeGeneration();
  timed_valid_ = false;
  ++graph_build_count_;
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

Timer::Stamp Timer::Current() const {
  Stamp stamp;
  stamp.database = root_->ChangeGeneration();
  if (sdc::SdcStore* store = Store()) stamp.constraints = store->Generation();
  stamp.parasitics = parasitics::NetAnnotations::Get().Generation();
  return stamp;
}

bool Timer::Update(bool full) {
  TimingGraph* graph = EnsureGraph();
  if (!graph) return false;
  sdc::SdcStore* store = Store();
  const Stamp stamp = Current();
  if (!full && timed_valid_ && timed_ == stamp) return true;
  // Counted as not done until it ends: an interrupted update is redone.
  timed_valid_ = false;
  cdm::Design* design = Design();
  sensitization_.Run(*graph, store, design);
  clocks_.clear();
  if (store) clocks_ = store->Clocks();
  clock_network_.Build(*graph, clocks_, sensitization_);
  const TimingInputs inputs(store, clock_network_, sensitization_);
  delay_calc_.Run(*graph, *calculator_, inputs, root_->GetDefaultLiberty());
  cycles_.Reset(clocks_);
  search_.Run(Context(), nullptr);
  timed_ = stamp;
  timed_valid_ = true;
  ++update_count_;
  return true;
}

SearchContext Timer::Context() {
  SearchContext context;
  context.graph = graph_.get();
  context.delays = &delay_calc_;
  context.constants = &sensitization_;
  context.clock_network = &clock_network_;
  context.store = Store();
  context.design = Design();
  context.clocks = &clocks_;
  context.cycles = &cycles_;
  return context;
}

}  // namespace sta
