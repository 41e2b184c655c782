#include "search/Sensitization.h"

#include <unordered_map>
#include <unordered_set>

#include "graph/GraphBuilder.h"
#include "graph/TimingGraph.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Port.h"
#include "sdc/SdcStore.h"

namespace sta {
namespace {

// The vertex a constraint on a pin stands at: the half that drives for a
// pin that drives its net, else the loading half.
uint32_t VertexOf(const cdm::Pin* pin) {
  return pin ? pin->GetVertexId() : 0;
}

const cdm::LibPort* LibPortOf(const cdm::Pin* pin) {
  return dynamic_cast<const cdm::LibPort*>(pin->GetPort());
}

// The cell pin that stands for `port`, or null (an internal port).
const cdm::Pin* PinOfPort(const cdm::Cell& cell, const cdm::LibPort* port) {
  for (uint32_t i = 0; i < cell.PinCount(); ++i)
    if (cell.GetPin(i)->GetPort() == port) return cell.GetPin(i);
  return nullptr;
}

uint32_t LoadVertexOf(const cdm::Pin* pin) {
  return LoadVertex(pin);
}

// Values a function can take when the ports in `fixed` (by position among
// its ports) hold their values and the others are free: bit 0 when 0 is
// possible, bit 1 when 1 is. `skip` (a position, or -1) is left free too.
int Reachable(const std::vector<bool>& table, const std::vector<int>& fixed, int skip,
              bool flip_skip, int& depends) {
  depends = 0;
  if (table.empty()) return 3;
  int reachable = 0;
  size_t mask = 0;
  size_t want = 0;
  for (size_t i = 0; i < fixed.size(); ++i) {
    if (fixed[i] < 0 || static_cast<int>(i) == skip) continue;
    mask |= size_t{1} << i;
    if (fixed[i] == 1) want |= size_t{1} << i;
  }
  for (size_t row = 0; row < table.size(); ++row) {
    if ((row & mask) != want) continue;
    reachable |= table[row] ? 2 : 1;
    if (skip >= 0 && flip_skip && table[row] != table[row ^ (size_t{1} << skip)]) depends = 1;
  }
  return reachable;
}

}  // namespace

void Sensitization::Run(const TimingGraph& graph, sdc::SdcStore* store, const cdm::Design* design) {
  const uint32_t count = graph.TableSize();
  values_.assign(count, 0);
  forced_.assign(count, 0);
  transitions_.assign(count, 3);
  disabled_.assign(graph.Edges().size(), false);
  disabled_count_ = 0;
  Seed(graph, store, design);
  Propagate(graph);
  DisableArcs(graph);
  if (store) DisableByConstraints(graph, *store);
  tables_.clear();
  for (bool off : disabled_) disabled_count_ += off ? 1 : 0;
}

void Sensitization::Seed(const TimingGraph& graph, sdc::SdcStore* store,
                         const cdm::Design* design) {
  // Tie nets: every pin on them.
  for (uint32_t v = 1; v < graph.TableSize(); ++v) {
    const cdm::Pin* pin = graph.vertex(v) ? graph.vertex(v)->pin() : nullptr;
    if (!pin || graph.vertex(v)->isDriver()) continue;
    const cdm::Net* net = pin->GetNet();
    if (net && !net->GetDriverPin()) {
      const int value = net->GetConstValue();
      if (value == 0 || value == 1) {
        values_[v] = static_cast<uint8_t>(value + 1);
        forced_[v] = 1;
      }
    }
  }
  if (!store || !design) return;
  auto force = [&](uint32_t v, cdm::LogicValue value) {
    if (v == 0 || v >= values_.size()) return;
    if (value == cdm::kLogicZero || value == cdm::kLogicOne) {
      values_[v] = static_cast<uint8_t>(value + 1);
      forced_[v] = 1;
    } else if (value == cdm::kLogicRise) {
      transitions_[v] = 1;
    } else if (value == cdm::kLogicFall) {
      transitions_[v] = 2;
    }
  };
  for (const auto& [port, record] : store->PortRecords()) {
    if (!record->logic) continue;
    force(VertexOf(design->FindPin(port->Name())), *record->logic);
  }
  for (const auto& [pin, record] : store->PinRecords()) {
    if (!record->case_value) continue;
    force(VertexOf(pin), *record->case_value);
    if (pin->IsNetDriver() && pin->IsNetLoad()) force(LoadVertexOf(pin), *record->case_value);
  }
}

void Sensitization::Propagate(const TimingGraph& graph) {
  for (uint32_t v : graph.LevelOrder()) {
    if (forced_[v]) continue;
    const Vertex* vertex = graph.vertex(v);
    const cdm::Pin* pin = vertex->pin();
    if (vertex->isDriver() && pin->GetCell()) {
      const int value = CellOutputValue(graph, v);
      if (value >= 0) values_[v] = static_cast<uint8_t>(value + 1);
      continue;
    }
    // A load takes its drivers' constant when all agree.
    int value = -1;
    bool any = false;
    for (uint32_t i = graph.InBegin(v); i < graph.InEnd(v); ++i) {
      const Edge& edge = graph.Edges()[graph.InEdge(i)];
      if (!edge.IsWire()) continue;
      const int from = static_cast<int>(values_[edge.from]) - 1;
      if (!any) {
        value = from;
        any = true;
      } else if (value != from) {
        value = -1;
      }
    }
    if (any && value >= 0) values_[v] = static_cast<uint8_t>(value + 1);
  }
}

int Sensitization::CellOutputValue(const TimingGraph& graph, uint32_t vertex) {
  const cdm::Pin* pin = graph.vertex(vertex)->pin();
  const cdm::Cell* cell = pin->GetCell();
  const cdm::LibPort* port = LibPortOf(pin);
  if (!cell || !port || !cell->GetRefLibCell()) return -1;
  const cdm::LibBoolFuncExpr* function = port->GetFunction();
  if (!function || function->IsEmpty()) return -1;
  const std::vector<cdm::LibPort*>& ports = function->GetFuncPorts();
  if (!ports.empty() && !HasConstantInput(graph, vertex)) return -1;
  std::vector<int> fixed(ports.size(), -1);
  bool any_fixed = ports.empty();
  for (size_t i = 0; i < ports.size(); ++i) {
    const cdm::Pin* input = PinOfPort(*cell, ports[i]);
    if (!input) continue;
    const int value = Value(LoadVertexOf(input));
    if (value >= 0) {
      fixed[i] = value;
      any_fixed = true;
    }
  }
  if (!any_fixed) return -1;
  if (ports.empty()) {
    return function->Evaluate([](const cdm::LibPort*) { return 0; }) ? 1 : 0;
  }
  int depends = 0;
  const int reachable = Reachable(Table(*function), fixed, -1, false, depends);
  if (reachable == 1) return 0;
  if (reachable == 2) return 1;
  return -1;
}

bool Sensitization::ArcSensitive(const TimingGraph& graph, uint32_t edge_index) {
  const Edge& edge = graph.Edges()[edge_index];
  const cdm::Pin* from_pin = graph.vertex(edge.from)->pin();
  const cdm::Pin* to_pin = graph.vertex(edge.to)->pin();
  const cdm::Cell* cell = to_pin->GetCell();
  const cdm::LibPort* port = LibPortOf(to_pin);
  if (!cell || !port) return true;
  const cdm::LibBoolFuncExpr* function = port->GetFunction();
  if (!function || function->IsEmpty()) return true;
  const std::vector<cdm::LibPort*>& ports = function->GetFuncPorts();
  std::vector<int> fixed(ports.size(), -1);
  int skip = -1;
  bool any_fixed = false;
  for (size_t i = 0; i < ports.size(); ++i) {
    const cdm::Pin* input = PinOfPort(*cell, ports[i]);
    if (!input) continue;
    if (input == from_pin) {
      skip = static_cast<int>(i);
      continue;
    }
    const int value = Value(LoadVertexOf(input));
    if (value >= 0) {
      fixed[i] = value;
      any_fixed = true;
    }
  }
  if (skip < 0 || !any_fixed) return true;
  int depends = 0;
  Reachable(Table(*function), fixed, skip, true, depends);
  return depends != 0;
}

void Sensitization::DisableArcs(const TimingGraph& graph) {
  const std::vector<Edge>& edges = graph.Edges();
  for (uint32_t e = 0; e < edges.size(); ++e) {
    const Edge& edge = edges[e];
    if (values_[edge.from] || values_[edge.to]) {
      disabled_[e] = true;
      continue;
    }
    if (edge.role == EdgeRole::kCombinational && HasConstantInput(graph, edge.to) &&
        !ArcSensitive(graph, e)) {
      disabled_[e] = true;
    }
  }
}

bool Sensitization::HasConstantInput(const TimingGraph& graph, uint32_t output) const {
  const cdm::Cell* cell = graph.vertex(output)->pin()->GetCell();
  if (!cell) return false;
  for (uint32_t i = 0; i < cell->PinCount(); ++i) {
    const cdm::Pin* pin = cell->GetPin(i);
    if (pin->IsNetLoad() && values_[LoadVertexOf(pin)]) return true;
  }
  return false;
}

const std::vector<bool>& Sensitization::Table(const cdm::LibBoolFuncExpr& function) {
  auto found = tables_.find(&function);
  if (found == tables_.end()) found = tables_.emplace(&function, function.TruthTable()).first;
  return found->second;
}

void Sensitization::DisableByConstraints(const TimingGraph& graph, sdc::SdcStore& store) {
  const std::vector<sdc::DisabledTiming>& entries = store.Disabled();
  if (entries.empty()) return;
  // What the entries name, by kind.
  struct Range {
    std::string from;
    std::string to;
  };
  std::unordered_map<const void*, std::vector<Range>> cells;  // cells and library cells
  std::unordered_set<const void*> pins;                       // pins and library pins
  for (const sdc::DisabledTiming& entry : entries) {
    const query::ObjectRef& ref = entry.object.ref;
    switch (ref.kind) {
      case query::ObjectKind::kCell:
      case query::ObjectKind::kLibCell:
        cells[ref.object].push_back(Range{entry.from, entry.to});
        break;
      case query::ObjectKind::kPin:
      case query::ObjectKind::kLibPin:
        pins.insert(ref.object);
        break;
      case query::ObjectKind::kPort: {
        const cdm::Design* design = store.GetDesign();
        const cdm::Port* port = static_cast<const cdm::Port*>(ref.object);
        if (design) pins.insert(design->FindPin(port->Name()));
        break;
      }
      default:
        break;
    }
  }
  auto matches = [](const std::vector<Range>& ranges, const cdm::LibTimingArcSet* arc_set) {
    for (const Range& range : ranges) {
      if (!range.from.empty() && (!arc_set || arc_set->GetFromPort()->Name() != range.from))
        continue;
      if (!range.to.empty() && (!arc_set || arc_set->GetToPort()->Name() != range.to)) continue;
      return true;
    }
    return false;
  };
  const std::vector<Edge>& edges = graph.Edges();
  for (uint32_t e = 0; e < edges.size(); ++e) {
    const Edge& edge = edges[e];
    const cdm::Pin* from = graph.vertex(edge.from)->pin();
    const cdm::Pin* to = graph.vertex(edge.to)->pin();
    bool off = pins.count(from) || pins.count(to);
    if (!off && edge.arc_set) {
      off = pins.count(edge.arc_set->GetFromPort()) || pins.count(edge.arc_set->GetToPort());
      const cdm::Cell* cell = to->GetCell();
      if (!off && !cells.empty() && cell) {
        auto found = cells.find(cell);
        if (found != cells.end()) off = matches(found->second, edge.arc_set);
        auto lib = cells.find(cell->GetRefLibCell());
        if (!off && lib != cells.end()) off = matches(lib->second, edge.arc_set);
      }
    }
    if (off) disabled_[e] = true;
  }
}

}  // namespace sta
