#include "search/ArrivalSearch.h"

#include <algorithm>
#include <memory>

#include "cmdlib/Interrupt.h"
#include "dcalc/GraphDelayCalc.h"
#include "graph/GraphBuilder.h"
#include "graph/TimingGraph.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/sta/Clock.h"
#include "msg/Progress.h"
#include "sdc/SdcStore.h"
#include "search/ClockNetwork.h"
#include "search/CycleAccounting.h"
#include "search/ExceptionPaths.h"
#include "search/Sensitization.h"

namespace sta {
namespace {

const cdm::RiseFall* EdgeOf(int rf) {
  return rf == 0 ? cdm::RiseFall::rise_ : cdm::RiseFall::fall_;
}
const cdm::MinMax* MinOrMax(int mm) {
  return mm == 0 ? cdm::MinMax::min_ : cdm::MinMax::max_;
}

Arrival Empty(uint32_t tag) {
  return Arrival{tag, {kNoArrivalMin, kNoArrivalMax, kNoArrivalMin, kNoArrivalMax}};
}

// Folds `value` into the slot: the earliest for min, the latest for max.
void Fold(Arrival& arrival, int rf, int mm, float value) {
  float& slot = arrival.value[rf * 2 + mm];
  slot = mm == 0 ? std::min(slot, value) : std::max(slot, value);
}

int ClockNumber(const std::vector<sdc::Clock*>& clocks, const sdc::Clock* clock) {
  for (size_t c = 0; c < clocks.size(); ++c)
    if (clocks[c] == clock) return static_cast<int>(c);
  return -1;
}

}  // namespace

void ArrivalSearch::Run(const SearchContext& context) {
  context_ = context;
  const TimingGraph& graph = *context.graph;
  tags_.Clear();
  entries_.clear();
  seeds_.clear();
  first_.assign(graph.TableSize(), 0);
  count_.assign(graph.TableSize(), 0);
  ideal_.assign(context.clocks->size(), false);
  clock_source_.assign(graph.TableSize(), false);
  for (size_t c = 0; c < context.clocks->size(); ++c) {
    ideal_[c] = !(*context.clocks)[c]->isPropagated();
    for (uint32_t v : context.clock_network->Sources(static_cast<uint32_t>(c)))
      clock_source_[v] = true;
  }
  entries_.reserve(graph.TableSize() + 16);
  Seed();
  const std::vector<uint32_t>& order = graph.LevelOrder();
  std::unique_ptr<msg::Progress> progress;
  if (order.size() > 1000000)
    progress = std::make_unique<msg::Progress>("Searching arrivals", order.size());
  size_t done = 0;
  for (uint32_t v : order) {
    if ((done & 4095) == 0) {
      cmdlib::ThrowIfInterrupted();
      if (progress) progress->Update(done);
    }
    VisitVertex(v);
    ++done;
  }
}

const Arrival* ArrivalSearch::Find(uint32_t vertex, uint32_t tag) const {
  if (vertex >= first_.size()) return nullptr;
  for (const Arrival* entry = Begin(vertex); entry != End(vertex); ++entry)
    if (entry->tag == tag) return entry;
  return nullptr;
}

float ArrivalSearch::ClockLatency(int clock, int rf, int mm, bool source, bool network) const {
  const sdc::Clock* c = (*context_.clocks)[clock];
  float latency = 0.0f;
  if (source) {
    if (c->getSourceLatency().empty() && c->isGenerated() && c->getMasterClock()) {
      // A generated clock without latency of its own has its master's.
      const int master = ClockNumber(*context_.clocks, c->getMasterClock());
      if (master >= 0) latency += ClockLatency(master, rf, mm, true, ideal_[master]);
    } else {
      latency += c->getSourceLatency().value(EdgeOf(rf), MinOrMax(mm));
    }
  }
  if (network && ideal_[clock]) latency += c->getNetworkLatency().value(EdgeOf(rf), MinOrMax(mm));
  return latency;
}

void ArrivalSearch::AddSeed(uint32_t vertex, ArrivalSeed seed) {
  seeds_[vertex].push_back(seed);
}

void ArrivalSearch::Seed() {
  SeedClocks();
  SeedInputDelays();
  SeedUnclocked();
}

void ArrivalSearch::SeedClocks() {
  const std::vector<sdc::Clock*>& clocks = *context_.clocks;
  for (size_t c = 0; c < clocks.size(); ++c) {
    for (uint32_t v : context_.clock_network->Sources(static_cast<uint32_t>(c))) {
      if (context_.constants->Value(v) >= 0) continue;
      for (int rf = 0; rf < 2; ++rf) {
        const int edge = static_cast<int>(c) * 2 + rf;
        ArrivalSeed seed{ArrivalSeed::Kind::kClockSource, Empty(tags_.Find(Tag{edge, true, 0}))};
        for (int mm = 0; mm < 2; ++mm) {
          const float latency = ClockLatency(static_cast<int>(c), rf, mm, true, true);
          seed.latency[rf * 2 + mm] = latency;
          seed.arrival.value[rf * 2 + mm] =
              static_cast<float>(context_.cycles->EdgeTime(edge)) + latency;
        }
        AddSeed(v, seed);
      }
    }
  }
}

uint32_t ArrivalSearch::StartStates(uint32_t vertex, int clock, int rf) {
  ExceptionPaths& exceptions = *context_.exceptions;
  const uint32_t states = exceptions.Start(vertex, 0, clock, rf);
  if (states == ExceptionPaths::kDropped) return states;
  // An input is also the first point the path passes.
  return exceptions.Advance(states, vertex, rf);
}

void ArrivalSearch::SeedInputDelays() {
  if (!context_.store) return;
  const std::vector<sdc::Clock*>& clocks = *context_.clocks;
  ExceptionPaths& exceptions = *context_.exceptions;
  for (const auto& [pin, record] : context_.store->PinRecords()) {
    if (record->input_delays.empty() || pin->GetVertexId() == 0) continue;
    const uint32_t v = DriverVertex(pin);
    if (!context_.graph->HasVertex(v) || context_.constants->Value(v) >= 0) continue;
    for (const sdc::InputDelay* delay : record->input_delays) {
      const int clock = delay->getClock() ? ClockNumber(clocks, delay->getClock()) : -1;
      if (delay->getClock() && clock < 0) continue;
      const int edge = clock < 0 ? -1 : clock * 2 + delay->getClockEdge()->getRiseFall()->index();
      for (int rf = 0; rf < 2; ++rf) {
        if (exceptions.HasFilter() && !exceptions.FilterAllowsStart(v, 0, clock, rf)) continue;
        const uint32_t states = StartStates(v, clock, rf);
        if (states == ExceptionPaths::kDropped) continue;
        ArrivalSeed seed{ArrivalSeed::Kind::kInputDelay,
                         Empty(tags_.Find(Tag{edge, false, states})), delay};
        bool any = false;
        for (int mm = 0; mm < 2; ++mm) {
          if (!delay->getDelays().hasValue(EdgeOf(rf), MinOrMax(mm))) continue;
          const int slot = rf * 2 + mm;
          float base = 0.0f;
          if (edge >= 0) {
            seed.latency[slot] =
                ClockLatency(clock, edge % 2, mm, !delay->getSourceLatencyIncluded(),
                             !delay->getNetworkLatencyIncluded());
            base = static_cast<float>(context_.cycles->EdgeTime(edge)) + seed.latency[slot];
          }
          seed.drive_delay[slot] = context_.delays->DriveDelay(v, rf, mm);
          seed.arrival.value[slot] =
              base + delay->getDelays().value(EdgeOf(rf), MinOrMax(mm)) + seed.drive_delay[slot];
          any = true;
        }
        if (any) AddSeed(v, seed);
      }
    }
  }
}

void ArrivalSearch::SeedUnclocked() {
  const TimingGraph& graph = *context_.graph;
  ExceptionPaths& exceptions = *context_.exceptions;
  for (uint32_t v = 1; v < graph.TableSize(); ++v) {
    const Vertex* vertex = graph.vertex(v);
    if (!vertex || !vertex->isDriver() || !vertex->pin()->IsTopPortPin()) continue;
    if (context_.clock_network->InNetwork(v) || context_.constants->Value(v) >= 0) continue;
    if (const std::vector<ArrivalSeed>* seeds = SeedsAt(v)) {
      bool delayed = false;
      for (const ArrivalSeed& seed : *seeds) delayed |= seed.kind == ArrivalSeed::Kind::kInputDelay;
      if (delayed) continue;
    }
    for (int rf = 0; rf < 2; ++rf) {
      if (exceptions.HasFilter() && !exceptions.FilterAllowsStart(v, 0, -1, rf)) continue;
      const uint32_t states = StartStates(v, -1, rf);
      if (states == ExceptionPaths::kDropped) continue;
      ArrivalSeed seed{ArrivalSeed::Kind::kUnclocked, Empty(tags_.Find(Tag{-1, false, states}))};
      for (int mm = 0; mm < 2; ++mm) {
        seed.drive_delay[rf * 2 + mm] = context_.delays->DriveDelay(v, rf, mm);
        seed.arrival.value[rf * 2 + mm] = seed.drive_delay[rf * 2 + mm];
      }
      AddSeed(v, seed);
    }
  }
}

bool ArrivalSearch::Propagate(uint32_t edge_index, uint32_t from_tag, int from_rf, int to_rf,
                              uint32_t& to_tag) {
  const Edge& edge = context_.graph->Edges()[edge_index];
  const Tag tag = tags_.Get(from_tag);
  ExceptionPaths& exceptions = *context_.exceptions;
  if (edge.role == EdgeRole::kClockToOutput) {
    // A register launches the clock edge that reaches its clock pin.
    if (!tag.is_clock) return false;
    const int clock = tag.Clock();
    if (exceptions.HasFilter() && !exceptions.FilterAllowsStart(edge.from, edge.to, clock, from_rf))
      return false;
    // The path passes the output it starts from.
    uint32_t states = exceptions.Start(edge.from, edge.to, clock, from_rf);
    if (states != ExceptionPaths::kDropped) states = exceptions.Advance(states, edge.to, to_rf);
    if (states == ExceptionPaths::kDropped) return false;
    to_tag = tags_.Find(Tag{tag.clock_edge, false, states});
    return true;
  }
  if (tag.is_clock) {
    to_tag = from_tag;
    return true;
  }
  const uint32_t states = exceptions.Advance(tag.states, edge.to, to_rf);
  if (states == ExceptionPaths::kDropped) return false;
  to_tag = states == tag.states ? from_tag : tags_.Find(Tag{tag.clock_edge, false, states});
  return true;
}

float ArrivalSearch::ArcDelay(uint32_t edge, uint32_t tag, int from_rf, int to_rf, int mm) const {
  (void)tag;
  return context_.delays->ArcDelay(edge, from_rf, to_rf, mm);
}

float ArrivalSearch::ClockPinArrival(const Arrival& clock, int rf, int mm) const {
  const Tag& tag = tags_.Get(clock.tag);
  if (!tag.is_clock || !IdealClock(tag.Clock())) return clock.Get(rf, mm);
  return static_cast<float>(context_.cycles->EdgeTime(tag.clock_edge)) +
         ClockLatency(tag.Clock(), tag.clock_edge % 2, mm, true, true);
}

bool ArrivalSearch::Allowed(uint32_t vertex, int rf) const {
  return (context_.constants->Transitions(vertex) >> rf) & 1;
}

void ArrivalSearch::VisitVertex(uint32_t w) {
  const TimingGraph& graph = *context_.graph;
  scratch_.clear();
  auto slot_of = [&](uint32_t tag) -> Arrival& {
    for (Arrival& entry : scratch_)
      if (entry.tag == tag) return entry;
    scratch_.push_back(Empty(tag));
    return scratch_.back();
  };
  if (const std::vector<ArrivalSeed>* seeds = SeedsAt(w)) {
    for (const ArrivalSeed& seed : *seeds) {
      Arrival& entry = slot_of(seed.arrival.tag);
      for (int rf = 0; rf < 2; ++rf)
        for (int mm = 0; mm < 2; ++mm)
          if (seed.arrival.Has(rf, mm)) Fold(entry, rf, mm, seed.arrival.Get(rf, mm));
    }
  }
  // A clock defined on a pin replaces what arrives there.
  const uint32_t fanin_end = clock_source_[w] ? graph.InBegin(w) : graph.InEnd(w);
  for (uint32_t i = graph.InBegin(w); i < fanin_end; ++i) {
    const uint32_t e = graph.InEdge(i);
    const Edge& edge = graph.Edges()[e];
    if (!Propagates(edge.role) || edge.BreaksLoop() || context_.constants->EdgeDisabled(e))
      continue;
    const uint32_t u = edge.from;
    for (uint32_t k = 0; k < count_[u]; ++k) {
      const Arrival from = entries_[first_[u] + k];
      for (int from_rf = 0; from_rf < 2; ++from_rf) {
        if (!from.Has(from_rf, 0) && !from.Has(from_rf, 1)) continue;
        for (int to_rf = 0; to_rf < 2; ++to_rf) {
          if (!edge.HasArc(from_rf, to_rf)) continue;
          uint32_t to_tag = 0;
          if (!Propagate(e, from.tag, from_rf, to_rf, to_tag)) continue;
          Arrival& entry = slot_of(to_tag);
          const bool launch = edge.role == EdgeRole::kClockToOutput;
          for (int mm = 0; mm < 2; ++mm) {
            if (!from.Has(from_rf, mm)) continue;
            const float at = launch ? ClockPinArrival(from, from_rf, mm) : from.Get(from_rf, mm);
            Fold(entry, to_rf, mm, at + ArcDelay(e, from.tag, from_rf, to_rf, mm));
          }
        }
      }
    }
  }
  first_[w] = static_cast<uint32_t>(entries_.size());
  uint32_t kept = 0;
  for (Arrival& entry : scratch_) {
    for (int rf = 0; rf < 2; ++rf) {
      if (Allowed(w, rf)) continue;
      entry.value[rf * 2] = kNoArrivalMin;
      entry.value[rf * 2 + 1] = kNoArrivalMax;
    }
    if (!entry.Has(0, 0) && !entry.Has(0, 1) && !entry.Has(1, 0) && !entry.Has(1, 1)) continue;
    entries_.push_back(entry);
    if (++kept == 0xFFFF) break;
  }
  count_[w] = static_cast<uint16_t>(kept);
}

}  // namespace sta
