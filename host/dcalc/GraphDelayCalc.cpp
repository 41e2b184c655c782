#include "dcalc/GraphDelayCalc.h"

#include <algorithm>
#include <limits>
#include <memory>

#include "cmdlib/Interrupt.h"
#include "dcalc/DelayCalcInputs.h"
#include "dcalc/TableLookup.h"
#include "graph/TimingGraph.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibTiming.h"
#include "hostapi/cdm/Pin.h"
#include "msg/Progress.h"

namespace sta {
namespace {

const cdm::RiseFall* EdgeOf(int rf) {
  return rf == 0 ? cdm::RiseFall::rise_ : cdm::RiseFall::fall_;
}
const cdm::MinMax* MinOrMax(int mm) {
  return mm == 0 ? cdm::MinMax::min_ : cdm::MinMax::max_;
}

// Position of an arc among the arcs an edge has, counted in bit order.
int ArcPosition(uint8_t arcs, int from_rf, int to_rf) {
  const uint8_t bit = ArcBit(from_rf, to_rf);
  if ((arcs & bit) == 0) return -1;
  int position = 0;
  for (uint8_t b = 1; b < bit; b <<= 1)
    if (arcs & b) ++position;
  return position;
}

bool NeedsDelays(const Edge& edge) {
  return edge.role == EdgeRole::kCombinational || edge.role == EdgeRole::kClockToOutput ||
         IsCheck(edge.role);
}

}  // namespace

void GraphDelayCalc::AllocateArcs(const TimingGraph& graph) {
  const std::vector<Edge>& edges = graph.Edges();
  arc_base_.assign(edges.size(), kNone);
  size_t next = 0;
  for (size_t e = 0; e < edges.size(); ++e) {
    if (!NeedsDelays(edges[e])) continue;
    arc_base_[e] = static_cast<uint32_t>(next);
    for (uint8_t arcs = edges[e].arcs; arcs; arcs &= arcs - 1) next += 2;
  }
  arc_values_.assign(next, 0.0f);
  driver_slot_.assign(graph.TableSize(), kNone);
  uint32_t drivers = 0;
  for (uint32_t v = 1; v < graph.TableSize(); ++v)
    if (graph.HasVertex(v) && graph.vertex(v)->isDriver()) driver_slot_[v] = drivers++;
  loads_.assign(static_cast<size_t>(drivers) * 4, NetLoad());
  allocated_edges_ = edges.size();
}

const SlewScale& GraphDelayCalc::ScaleOf(const cdm::LibTimingArcSet* arc_set) {
  const cdm::LibertyLib* lib = arc_set->GetToPort()->GetLibCell()->GetLibertyLib();
  auto found = scales_.find(lib);
  if (found == scales_.end()) found = scales_.emplace(lib, SlewScale(lib, reference_)).first;
  return found->second;
}

void GraphDelayCalc::Run(TimingGraph& graph, const ArcDelayCalc& calc,
                         const DelayCalcInputs& inputs, const cdm::LibertyLib* reference) {
  calc_ = &calc;
  inputs_ = &inputs;
  graph_ = &graph;
  if (reference != reference_) scales_.clear();
  reference_ = reference;
  AllocateArcs(graph);
  std::fill(arc_values_.begin(), arc_values_.end(), 0.0f);
  drive_delays_.clear();
  graph.ClearSlews();
  // An update over more than a million vertices shows its progress. Ctrl-C
  // stops it every 4096 vertices; the slews are then partial, and the timer,
  // which counts the update as not done, computes them all again next time.
  const std::vector<uint32_t>& order = graph.LevelOrder();
  std::unique_ptr<msg::Progress> progress;
  if (order.size() > 1000000)
    progress = std::make_unique<msg::Progress>("Updating timing", order.size());
  size_t done = 0;
  for (uint32_t v : order) {
    if ((done & 4095) == 0) {
      cmdlib::ThrowIfInterrupted();
      if (progress) progress->Update(done);
    }
    VertexSlews(graph, v);
    ++done;
  }
  const std::vector<Edge>& edges = graph.Edges();
  for (uint32_t e = 0; e < edges.size(); ++e) {
    if (IsCheck(edges[e].role) && !inputs.EdgeDisabled(e)) CheckMargins(graph, e);
  }
}

void GraphDelayCalc::DriverLoad(const TimingGraph& graph, uint32_t v) {
  const uint32_t slot = driver_slot_[v];
  if (slot == kNone) return;
  const cdm::Pin* pin = graph.vertex(v)->pin();
  for (int mm = 0; mm < 2; ++mm) {
    float wire_cap = 0.0f;
    float wire_res = 0.0f;
    inputs_->WireParasitics(pin, mm, wire_cap, wire_res);
    for (int rf = 0; rf < 2; ++rf) {
      NetLoad& load = loads_[slot * 4 + Slot(rf, mm)];
      load.wire_cap = wire_cap;
      load.wire_res = wire_res;
      load.pin_cap = 0.0f;
      if (pin->IsTopPortPin()) load.pin_cap += inputs_->PortLoad(pin, rf, mm);
      for (uint32_t e = graph.OutBegin(v); e < graph.OutEnd(v); ++e) {
        const Edge& edge = graph.Edges()[e];
        if (!edge.IsWire()) continue;
        const cdm::Pin* load_pin = graph.vertex(edge.to)->pin();
        if (load_pin->IsTopPortPin()) {
          load.pin_cap += inputs_->PortLoad(load_pin, rf, mm);
        } else {
          load.pin_cap += std::max(0.0f, load_pin->Capacitance(EdgeOf(rf), MinOrMax(mm)));
        }
      }
    }
  }
}

void GraphDelayCalc::CellArcs(TimingGraph& graph, uint32_t edge_index, float out_slew[2][2],
                              bool seen[2][2]) {
  const Edge& edge = graph.Edges()[edge_index];
  const SlewScale& scale = ScaleOf(edge.arc_set);
  const uint32_t slot = driver_slot_[edge.to];
  float* values = &arc_values_[arc_base_[edge_index]];
  for (int from_rf = 0; from_rf < 2; ++from_rf) {
    for (int to_rf = 0; to_rf < 2; ++to_rf) {
      const int position = ArcPosition(edge.arcs, from_rf, to_rf);
      if (position < 0) continue;
      const cdm::LibTimingModel* model =
          edge.arc_set->GetTimingAttr()->GetTimingModel(EdgeOf(to_rf));
      if (!model) continue;
      for (int mm = 0; mm < 2; ++mm) {
        const NetLoad load = slot == kNone ? NetLoad() : loads_[slot * 4 + Slot(to_rf, mm)];
        const ArcTiming timing =
            calc_->GateDelay(*model, graph.Slew(edge.from, from_rf, mm), load, scale);
        values[position * 2 + mm] = timing.delay;
        float& slew = out_slew[to_rf][mm];
        if (!seen[to_rf][mm]) {
          slew = timing.slew;
          seen[to_rf][mm] = true;
        } else {
          slew = mm == 0 ? std::min(slew, timing.slew) : std::max(slew, timing.slew);
        }
      }
    }
  }
}

void GraphDelayCalc::VertexSlews(TimingGraph& graph, uint32_t v) {
  const Vertex* vertex = graph.vertex(v);
  if (vertex->isDriver()) DriverLoad(graph, v);
  float slew[2][2] = {{0.0f, 0.0f}, {0.0f, 0.0f}};
  bool seen[2][2] = {{false, false}, {false, false}};
  for (uint32_t i = graph.InBegin(v); i < graph.InEnd(v); ++i) {
    const uint32_t e = graph.InEdge(i);
    const Edge& edge = graph.Edges()[e];
    if (!Propagates(edge.role) || edge.BreaksLoop() || inputs_->EdgeDisabled(e)) continue;
    if (edge.IsWire()) {
      const uint32_t slot = driver_slot_[edge.from];
      for (int rf = 0; rf < 2; ++rf) {
        for (int mm = 0; mm < 2; ++mm) {
          const NetLoad load = slot == kNone ? NetLoad() : loads_[slot * 4 + Slot(rf, mm)];
          const float s = calc_->WireDelay(graph.Slew(edge.from, rf, mm), load).slew;
          if (!seen[rf][mm]) {
            slew[rf][mm] = s;
            seen[rf][mm] = true;
          } else {
            slew[rf][mm] = mm == 0 ? std::min(slew[rf][mm], s) : std::max(slew[rf][mm], s);
          }
        }
      }
    } else {
      CellArcs(graph, e, slew, seen);
    }
  }
  const cdm::Pin* pin = vertex->pin();
  if (pin->IsTopPortPin() && vertex->isDriver()) {
    const uint32_t slot = driver_slot_[v];
    for (int rf = 0; rf < 2; ++rf) {
      for (int mm = 0; mm < 2; ++mm) {
        float value = 0.0f;
        float delay = 0.0f;
        const float load = slot == kNone ? 0.0f : loads_[slot * 4 + Slot(rf, mm)].Total();
        if (inputs_->InputSlew(pin, rf, mm, value)) {
          slew[rf][mm] = value;
        } else if (inputs_->DrivingCell(pin, rf, mm, load, delay, value)) {
          slew[rf][mm] = value;
          drive_delays_[v][Slot(rf, mm)] = delay;
        }
      }
    }
  }
  for (int rf = 0; rf < 2; ++rf) {
    for (int mm = 0; mm < 2; ++mm) {
      float ideal = 0.0f;
      if (inputs_->IdealClockSlew(v, rf, mm, ideal)) slew[rf][mm] = ideal;
      graph.SetSlew(v, rf, mm, slew[rf][mm]);
    }
  }
}

void GraphDelayCalc::CheckMargins(const TimingGraph& graph, uint32_t edge_index) {
  const Edge& edge = graph.Edges()[edge_index];
  const SlewScale& scale = ScaleOf(edge.arc_set);
  float* values = &arc_values_[arc_base_[edge_index]];
  for (int clock_rf = 0; clock_rf < 2; ++clock_rf) {
    for (int data_rf = 0; data_rf < 2; ++data_rf) {
      const int position = ArcPosition(edge.arcs, clock_rf, data_rf);
      if (position < 0) continue;
      const cdm::LibTimingModel* model =
          edge.arc_set->GetTimingAttr()->GetTimingModel(EdgeOf(data_rf));
      if (!model || !model->GetDelayTable()) continue;
      for (int mm = 0; mm < 2; ++mm) {
        TableArgs args;
        args.related_slew = scale.ToLibrary(graph.Slew(edge.from, clock_rf, mm));
        args.constrained_slew = scale.ToLibrary(graph.Slew(edge.to, data_rf, mm));
        args.in_slew = args.related_slew;
        values[position * 2 + mm] = TableValue(*model->GetDelayTable(), args);
      }
    }
  }
}

float GraphDelayCalc::ArcDelay(uint32_t edge, int from_rf, int to_rf, int mm) const {
  if (edge >= arc_base_.size() || arc_base_[edge] == kNone) return 0.0f;
  const int position = ArcPosition(graph_->Edges()[edge].arcs, from_rf, to_rf);
  if (position < 0) return 0.0f;
  return arc_values_[arc_base_[edge] + position * 2 + mm];
}

NetLoad GraphDelayCalc::Load(uint32_t driver, int rf, int mm) const {
  if (driver >= driver_slot_.size() || driver_slot_[driver] == kNone) return NetLoad();
  return loads_[driver_slot_[driver] * 4 + Slot(rf, mm)];
}

float GraphDelayCalc::DriveDelay(uint32_t port_vertex, int rf, int mm) const {
  auto found = drive_delays_.find(port_vertex);
  return found == drive_delays_.end() ? 0.0f : found->second[Slot(rf, mm)];
}

}  // namespace sta
