#include "dcalc/GraphDelayCalc.h"

#include <algorithm>
#include <memory>

#include "cmdlib/Interrupt.h"
#include "dcalc/DelayCalcInputs.h"
#include "dcalc/TableLookup.h"
#include "graph/ArcRoles.h"
#include "graph/TimingGraph.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibTiming.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/sta/InputDrive.h"
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

// Folds `value` into `slot`: the smallest for min (mm 0), the largest for
// max; the first value sets it.
void Fold(float& slot, bool& seen, float value, int mm) {
  if (!seen) {
    slot = value;
    seen = true;
  } else {
    slot = mm == 0 ? std::min(slot, value) : std::max(slot, value);
  }
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
}

const SlewScale& GraphDelayCalc::ScaleOf(const cdm::LibCell* lib_cell) {
  const cdm::LibertyLib* lib = lib_cell->GetLibertyLib();
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
    bool whole = false;
    inputs_->WireParasitics(pin, mm, wire_cap, wire_res, whole);
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
      if (whole) load.wire_cap = std::max(0.0f, wire_cap - load.pin_cap);
    }
  }
}

void GraphDelayCalc::CellArcs(TimingGraph& graph, uint32_t edge_index, float out_slew[2][2],
                              bool seen[2][2]) {
  const Edge& edge = graph.Edges()[edge_index];
  const SlewScale& scale = ScaleOf(edge.arc_set->GetToPort()->GetLibCell());
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
        Fold(out_slew[to_rf][mm], seen[to_rf][mm], timing.slew, mm);
      }
    }
  }
}

bool GraphDelayCalc::DriveCellTiming(const sdc::DriveCell& cell, int rf, int mm,
                                     const NetLoad& load, ArcTiming& result) {
  const cdm::LibCell* lib_cell = cell.getLibCell();
  if (!lib_cell) return false;
  const SlewScale& scale = ScaleOf(lib_cell);
  bool seen_delay = false;
  bool seen_slew = false;
  for (const cdm::LibTimingArcSet* arc_set : lib_cell->GetTimingArcSets()) {
    if (cell.getToPort() ? arc_set->GetToPort() != cell.getToPort()
                         : !arc_set->GetToPort()->IsOutput()) {
      continue;
    }
    if (cell.getFromPort() && arc_set->GetFromPort() != cell.getFromPort()) continue;
    const EdgeRole role = ArcRole(*arc_set);
    if (role != EdgeRole::kCombinational) continue;
    const uint8_t arcs = ArcTransitions(*arc_set, role);
    const cdm::LibTimingModel* model = arc_set->GetTimingAttr()->GetTimingModel(EdgeOf(rf));
    if (!model) continue;
    for (int in_rf = 0; in_rf < 2; ++in_rf) {
      if ((arcs & ArcBit(in_rf, rf)) == 0) continue;
      const float in_slew = cell.getInputTransition(EdgeOf(in_rf)).value_or(0.0f);
      const ArcTiming timing = calc_->GateDelay(*model, in_slew, load, scale);
      Fold(result.delay, seen_delay, timing.delay, mm);
      Fold(result.slew, seen_slew, timing.slew, mm);
    }
  }
  return seen_delay;
}

void GraphDelayCalc::InputPortSlews(uint32_t v, float slew[2][2]) {
  const cdm::Pin* pin = graph_->vertex(v)->pin();
  const uint32_t slot = driver_slot_[v];
  for (int rf = 0; rf < 2; ++rf) {
    for (int mm = 0; mm < 2; ++mm) {
      const NetLoad load = slot == kNone ? NetLoad() : loads_[slot * 4 + Slot(rf, mm)];
      float value = 0.0f;
      if (inputs_->InputSlew(pin, rf, mm, value)) {
        slew[rf][mm] = value;
      } else if (const sdc::DriveCell* cell = inputs_->DrivingCell(pin, rf, mm)) {
        ArcTiming timing;
        if (DriveCellTiming(*cell, rf, mm, load, timing)) {
          slew[rf][mm] = timing.slew;
          drive_delays_[v][Slot(rf, mm)] = timing.delay;
        }
      } else if (inputs_->DriveResistance(pin, rf, mm, value)) {
        // A linear driver of that resistance: delay R * C to the middle of
        // the swing, and the slew of the same ramp.
        const ArcTiming timing = calc_->DriveResistance(value, load);
        slew[rf][mm] = timing.slew;
        drive_delays_[v][Slot(rf, mm)] = timing.delay;
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
          Fold(slew[rf][mm], seen[rf][mm], s, mm);
        }
      }
    } else {
      CellArcs(graph, e, slew, seen);
    }
  }
  if (vertex->isDriver() && vertex->pin()->IsTopPortPin()) InputPortSlews(v, slew);
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
  const SlewScale& scale = ScaleOf(edge.arc_set->GetToPort()->GetLibCell());
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
