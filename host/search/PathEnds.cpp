#include "search/PathEnds.h"

#include "dcalc/GraphDelayCalc.h"
#include "graph/GraphBuilder.h"
#include "graph/TimingGraph.h"
#include "hostapi/cdm/LibTiming.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/sta/Clock.h"
#include "sdc/SdcStore.h"
#include "search/CycleAccounting.h"
#include "search/ExceptionPaths.h"
#include "search/Sensitization.h"

namespace sta {
namespace {

using Kind = CompiledException::Kind;

const cdm::RiseFall* EdgeOf(int rf) {
  return rf == 0 ? cdm::RiseFall::rise_ : cdm::RiseFall::fall_;
}
const cdm::MinMax* MinOrMax(int mm) {
  return mm == 0 ? cdm::MinMax::min_ : cdm::MinMax::max_;
}

bool IsAsync(const Edge& edge) {
  if (!edge.arc_set) return false;
  switch (edge.arc_set->GetTimingType()) {
    case cdm::TimingType::kRecoveryRising:
    case cdm::TimingType::kRecoveryFalling:
    case cdm::TimingType::kRemovalRising:
    case cdm::TimingType::kRemovalFalling:
      return true;
    default:
      return false;
  }
}

bool IsPathDelay(const CompiledException* exception) {
  return exception && (exception->kind == Kind::kMaxDelay || exception->kind == Kind::kMinDelay);
}

// A multicycle with neither -setup nor -hold (or both) moves the setup
// check only; the hold check follows it.
bool MulticycleCovers(const CompiledException* exception, bool setup) {
  if (!exception || exception->kind != Kind::kMulticycle) return false;
  if (exception->setup && exception->hold) return setup;
  return setup ? exception->setup : exception->hold;
}

const char* const kDefaultGroup = "**default**";
const char* const kAsyncGroup = "**async_default**";

}  // namespace

bool IsPathGroupName(sdc::SdcStore* store, const std::string& name) {
  if (name == kDefaultGroup || name == kAsyncGroup) return true;
  if (!store) return false;
  for (const sdc::Clock* clock : store->Clocks())
    if (clock->Name() == name) return true;
  for (const sdc::PathException& exception : store->Exceptions()) {
    if (exception.type == sdc::PathException::Type::kGroupPath && !exception.group_default &&
        exception.group == name)
      return true;
  }
  return false;
}

void PathEnds::Find(ArrivalSearch& search) {
  search_ = &search;
  ends_.clear();
  groups_.clear();
  group_index_.clear();
  output_delays_.clear();
  const SearchContext& context = search.Context();
  const TimingGraph& graph = *context.graph;
  if (context.store) {
    for (const auto& [pin, record] : context.store->PinRecords()) {
      if (record->output_delays.empty() || pin->GetVertexId() == 0) continue;
      output_delays_[LoadVertex(pin)] = &record->output_delays;
    }
  }
  delay_ends_.assign(graph.TableSize(), false);
  any_path_delay_ = false;
  for (const CompiledException& exception : context.exceptions->All()) {
    if (exception.kind != Kind::kMaxDelay && exception.kind != Kind::kMinDelay) continue;
    if (!exception.to.present || !exception.to.clocks.empty()) any_path_delay_ = true;
    for (uint32_t v : exception.to.vertices)
      if (v < delay_ends_.size()) delay_ends_[v] = true;
  }
  for (uint32_t v = 1; v < graph.TableSize(); ++v) VisitEnd(v);
}

void PathEnds::VisitEnd(uint32_t w) {
  const SearchContext& context = search_->Context();
  const TimingGraph& graph = *context.graph;
  if (!graph.HasVertex(w) || search_->Begin(w) == search_->End(w)) return;
  bool check = false;
  for (uint32_t i = graph.InBegin(w); i < graph.InEnd(w) && !check; ++i) {
    const Edge& edge = graph.Edges()[graph.InEdge(i)];
    check = (edge.role == EdgeRole::kSetup || edge.role == EdgeRole::kHold) &&
            !context.constants->EdgeDisabled(graph.InEdge(i));
  }
  const bool output = output_delays_.count(w) != 0;
  const Vertex* vertex = graph.vertex(w);
  const bool path_delay =
      delay_ends_[w] || (any_path_delay_ && vertex->isLoad() && vertex->pin()->IsTopPortPin());
  if (!check && !output && !path_delay) return;
  // Copies: the tags an end reads may grow the tag table.
  const std::vector<Arrival> data(search_->Begin(w), search_->End(w));
  for (const Arrival& entry : data) {
    for (int rf = 0; rf < 2; ++rf) {
      for (bool setup : {true, false}) {
        if (!entry.Has(rf, setup ? 1 : 0)) continue;
        const size_t before = ends_.size();
        if (check) CheckEnds(w, entry, rf, setup);
        if (output) OutputDelayEnds(w, entry, rf, setup);
        if (ends_.size() == before && path_delay) PathDelayEnd(w, entry, rf, setup);
      }
    }
  }
}

bool PathEnds::Relate(PathEnd& end, const Tag& data_tag, double& capture_time,
                      const CompiledException*& exception) {
  const SearchContext& context = search_->Context();
  CycleAccounting& cycles = *context.cycles;
  const ExceptionPaths& exceptions = *context.exceptions;
  const int launch = end.launch_edge;
  const int capture = end.capture_edge;
  const int launch_clock = launch < 0 ? -1 : launch / 2;
  const int capture_clock = capture < 0 ? -1 : capture / 2;
  exception = exceptions.Applying(data_tag.states, launch_clock, end.vertex, end.rf, capture_clock,
                                  end.setup);
  if (exception && exception->kind == Kind::kFalsePath) return false;
  if (IsPathDelay(exception)) {
    capture_time = (launch < 0 ? 0.0 : cycles.EdgeTime(launch)) + exception->value;
    return true;
  }
  if (launch < 0 || capture < 0) return false;
  const CycleAccounting::Relation& relation = cycles.Find(launch, capture);
  end.launch_shift = static_cast<float>(end.setup ? relation.setup_launch : relation.hold_launch);
  end.arrival += end.launch_shift;
  const double launch_time = cycles.EdgeTime(launch) + end.launch_shift;
  if (end.setup) {
    capture_time = launch_time + relation.setup;
    if (!MulticycleCovers(exception, true)) {
      exception = nullptr;
    } else {
      const double period = exception->start ? cycles.Period(launch) : cycles.Period(capture);
      capture_time += (exception->value - 1.0) * period;
    }
    return true;
  }
  capture_time = launch_time + relation.hold;
  // The hold check moves with the setup check's multicycle, then back by
  // the hold multicycle (counted in launch periods unless -end).
  const CompiledException* setup_multicycle =
      exceptions.Applying(data_tag.states, launch_clock, end.vertex, end.rf, capture_clock, true);
  if (MulticycleCovers(setup_multicycle, true)) {
    const double period = setup_multicycle->start ? cycles.Period(launch) : cycles.Period(capture);
    capture_time += (setup_multicycle->value - 1.0) * period;
  } else {
    setup_multicycle = nullptr;
  }
  if (MulticycleCovers(exception, false)) {
    const double period = exception->end ? cycles.Period(capture) : cycles.Period(launch);
    capture_time -= exception->value * period;
  } else {
    exception = setup_multicycle;
  }
  return true;
}

float PathEnds::Uncertainty(int launch_edge, int capture_edge, bool setup,
                            const cdm::Pin* clock_pin) {
  if (capture_edge < 0) return 0.0f;
  const SearchContext& context = search_->Context();
  const std::vector<sdc::Clock*>& clocks = *context.clocks;
  const sdc::Clock* capture = clocks[capture_edge / 2];
  const int side = setup ? 1 : 0;
  if (context.store) {
    // Between the two clocks, else on the clock pin, else on the clock.
    if (launch_edge >= 0) {
      const sdc::Clock* launch = clocks[launch_edge / 2];
      for (const sdc::InterClockUncertainty& between : context.store->InterClockUncertainties()) {
        if (between.from != launch || between.to != capture || !between.value[side]) continue;
        const bool from_edge =
            launch_edge % 2 == 0 ? between.from_edges->HasRise() : between.from_edges->HasFall();
        const bool to_edge =
            capture_edge % 2 == 0 ? between.to_edges->HasRise() : between.to_edges->HasFall();
        if (from_edge && to_edge) return *between.value[side];
      }
    }
    if (clock_pin) {
      const sdc::PinConstraints* record = context.store->FindPin(clock_pin);
      if (record && record->clock_uncertainty[side]) return *record->clock_uncertainty[side];
    }
  }
  return capture->getUncertainty(setup ? cdm::MinMax::max_ : cdm::MinMax::min_).value_or(0.0f);
}

uint32_t PathEnds::GroupOf(const PathEnd& end, const Tag& data_tag,
                           const std::string& clock_group) {
  const int launch_clock = end.launch_edge < 0 ? -1 : end.launch_edge / 2;
  const int capture_clock = end.capture_edge < 0 ? -1 : end.capture_edge / 2;
  const std::string* named = search_->Context().exceptions->Group(
      data_tag.states, launch_clock, end.vertex, end.rf, capture_clock);
  const std::string name =
      named ? (named->empty() ? std::string(kDefaultGroup) : *named) : clock_group;
  auto found = group_index_.find(name);
  if (found != group_index_.end()) return found->second;
  const uint32_t index = static_cast<uint32_t>(groups_.size());
  groups_.push_back(name);
  group_index_.emplace(name, index);
  return index;
}

void PathEnds::Finish(PathEnd& end) {
  const ExceptionPaths& exceptions = *search_->Context().exceptions;
  if (exceptions.HasFilter()) {
    const Tag& tag = search_->Tags().Get(end.tag);
    const int capture_clock = end.capture_edge < 0 ? -1 : end.capture_edge / 2;
    if (!exceptions.FilterAccepts(tag.states, tag.Clock(), end.vertex, end.rf, capture_clock))
      return;
  }
  end.slack = end.setup ? end.required - end.arrival : end.arrival - end.required;
  ends_.push_back(end);
}

void PathEnds::CheckEnds(uint32_t w, const Arrival& data, int rf, bool setup) {
  const SearchContext& context = search_->Context();
  const TimingGraph& graph = *context.graph;
  const Tag data_tag = search_->Tags().Get(data.tag);
  const int mm = setup ? 1 : 0;
  for (uint32_t i = graph.InBegin(w); i < graph.InEnd(w); ++i) {
    const uint32_t e = graph.InEdge(i);
    const Edge& edge = graph.Edges()[e];
    if (edge.role != (setup ? EdgeRole::kSetup : EdgeRole::kHold)) continue;
    if (context.constants->EdgeDisabled(e)) continue;
    const std::vector<Arrival> clocks(search_->Begin(edge.from), search_->End(edge.from));
    for (const Arrival& clock : clocks) {
      const Tag& clock_tag = search_->Tags().Get(clock.tag);
      if (!clock_tag.is_clock) continue;
      for (int clock_rf = 0; clock_rf < 2; ++clock_rf) {
        // The capture clock is the early one for setup, the late one for hold.
        const int clock_mm = setup ? 0 : 1;
        if (!edge.HasArc(clock_rf, rf) || !clock.Has(clock_rf, clock_mm)) continue;
        PathEnd end;
        end.kind = PathEnd::Kind::kCheck;
        end.setup = setup;
        end.async = IsAsync(edge);
        end.rf = static_cast<uint8_t>(rf);
        end.clock_rf = static_cast<uint8_t>(clock_rf);
        end.vertex = w;
        end.tag = data.tag;
        end.edge = e;
        end.clock_tag = clock.tag;
        end.launch_edge = data_tag.clock_edge;
        end.capture_edge = clock_tag.clock_edge;
        end.arrival = data.Get(rf, mm);
        end.margin = context.delays->ArcDelay(e, clock_rf, rf, mm);
        end.clock_latency = search_->ClockPinArrival(clock, clock_rf, clock_mm) -
                            static_cast<float>(context.cycles->EdgeTime(end.capture_edge));
        double capture_time = 0.0;
        if (!Relate(end, data_tag, capture_time, end.exception)) continue;
        end.capture_time = static_cast<float>(capture_time);
        if (IsPathDelay(end.exception) && end.exception->ignore_clock_latency)
          end.clock_latency = 0.0f;
        end.uncertainty =
            Uncertainty(end.launch_edge, end.capture_edge, setup, graph.vertex(edge.from)->pin());
        const float base = end.capture_time + end.clock_latency;
        end.required =
            setup ? base - end.uncertainty - end.margin : base + end.uncertainty + end.margin;
        const std::string clock_name = (*context.clocks)[end.capture_edge / 2]->Name();
        end.group = GroupOf(end, data_tag, end.async ? kAsyncGroup : clock_name);
        Finish(end);
      }
    }
  }
}

void PathEnds::OutputDelayEnds(uint32_t w, const Arrival& data, int rf, bool setup) {
  const SearchContext& context = search_->Context();
  const Tag data_tag = search_->Tags().Get(data.tag);
  const int mm = setup ? 1 : 0;
  for (const sdc::OutputDelay* delay : *output_delays_.at(w)) {
    if (!delay->getDelays().hasValue(EdgeOf(rf), MinOrMax(mm))) continue;
    int capture = -1;
    if (const sdc::Clock* clock = delay->getClock()) {
      for (size_t c = 0; c < context.clocks->size(); ++c)
        if ((*context.clocks)[c] == clock)
          capture = static_cast<int>(c) * 2 + delay->getClockEdge()->getRiseFall()->index();
      if (capture < 0) continue;
    }
    PathEnd end;
    end.kind = PathEnd::Kind::kOutputDelay;
    end.setup = setup;
    end.rf = static_cast<uint8_t>(rf);
    end.vertex = w;
    end.tag = data.tag;
    end.output_delay = delay;
    end.launch_edge = data_tag.clock_edge;
    end.capture_edge = capture;
    end.arrival = data.Get(rf, mm);
    end.margin = delay->getDelays().value(EdgeOf(rf), MinOrMax(mm));
    double capture_time = 0.0;
    if (!Relate(end, data_tag, capture_time, end.exception)) continue;
    end.capture_time = static_cast<float>(capture_time);
    std::string group = kDefaultGroup;
    if (!IsPathDelay(end.exception)) {
      end.clock_latency = search_->ClockLatency(capture / 2, capture % 2, setup ? 0 : 1,
                                                !delay->getSourceLatencyIncluded(),
                                                !delay->getNetworkLatencyIncluded());
      end.uncertainty = Uncertainty(end.launch_edge, capture, setup, nullptr);
      group = (*context.clocks)[capture / 2]->Name();
    }
    const float base = end.capture_time + end.clock_latency - end.margin;
    end.required = setup ? base - end.uncertainty : base + end.uncertainty;
    end.group = GroupOf(end, data_tag, group);
    Finish(end);
  }
}

void PathEnds::PathDelayEnd(uint32_t w, const Arrival& data, int rf, bool setup) {
  const Tag data_tag = search_->Tags().Get(data.tag);
  PathEnd end;
  end.kind = PathEnd::Kind::kPathDelay;
  end.setup = setup;
  end.rf = static_cast<uint8_t>(rf);
  end.vertex = w;
  end.tag = data.tag;
  end.launch_edge = data_tag.clock_edge;
  end.arrival = data.Get(rf, setup ? 1 : 0);
  double capture_time = 0.0;
  if (!Relate(end, data_tag, capture_time, end.exception) || !IsPathDelay(end.exception)) return;
  end.capture_time = static_cast<float>(capture_time);
  end.required = end.capture_time;
  end.group = GroupOf(end, data_tag, kDefaultGroup);
  Finish(end);
}

}  // namespace sta
