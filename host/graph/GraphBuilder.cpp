#include "graph/GraphBuilder.h"

#include <unordered_map>
#include <vector>

#include "graph/ArcRoles.h"
#include "graph/TimingGraph.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/DesignIterators.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/Pin.h"

namespace sta {
namespace {

bool IsVertexPin(const cdm::Pin* pin) {
  if (pin->IsTopPortPin()) return true;
  const cdm::Cell* cell = pin->GetCell();
  return cell && cell->IsLeaf() && pin->GetVertexId() != 0;
}

// The edges one library cell contributes, by pin position, worked out once
// per library cell and stamped out for every instance.
struct EdgeTemplate {
  uint32_t from_pin;
  uint32_t to_pin;
  const cdm::LibTimingArcSet* arc_set;
  EdgeRole role;
  uint8_t arcs;
};

std::vector<EdgeTemplate> MakeTemplates(const cdm::Cell& instance) {
  std::vector<EdgeTemplate> templates;
  const cdm::LibCell* lib_cell = instance.GetRefLibCell();
  auto position = [&](const cdm::LibPort* port, uint32_t& index) {
    for (uint32_t i = 0; i < instance.PinCount(); ++i) {
      if (instance.GetPin(i)->GetPort() == port) {
        index = i;
        return true;
      }
    }
    return false;
  };
  for (const cdm::LibTimingArcSet* arc_set : lib_cell->GetTimingArcSets()) {
    EdgeTemplate item{0, 0, arc_set, EdgeRole::kCombinational, 0};
    if (!position(arc_set->GetFromPort(), item.from_pin) ||
        !position(arc_set->GetToPort(), item.to_pin)) {
      continue;  // an arc of an internal or bus port no pin stands for
    }
    item.role = ArcRole(*arc_set);
    item.arcs = ArcTransitions(*arc_set, item.role);
    if (item.arcs == 0) continue;
    const bool single_pin =
        item.role == EdgeRole::kMinPulseWidth || item.role == EdgeRole::kMinPeriod;
    if ((item.from_pin == item.to_pin) != single_pin) continue;
    templates.push_back(item);
  }
  return templates;
}

}  // namespace

void BuildTimingGraph(const cdm::Design* design, TimingGraph& graph) {
  std::vector<cdm::Pin*> pins;
  uint32_t max_id = 0;
  cdm::AllPinIterator all(design, true, IsVertexPin);
  while (all.HasNext()) {
    cdm::Pin* pin = all.Next();
    pins.push_back(pin);
    if (pin->GetVertexId() > max_id) max_id = pin->GetVertexId();
  }
  graph.ResetVertices(max_id);
  for (cdm::Pin* pin : pins) {
    graph.SetVertex(pin->GetVertexId(), pin, pin->IsNetDriver(), pin->IsNetLoad());
  }

  // Cell arcs, each cell once (its pins come one after another).
  std::unordered_map<const cdm::LibCell*, std::vector<EdgeTemplate>> templates;
  const cdm::Cell* last_cell = nullptr;
  for (cdm::Pin* pin : pins) {
    const cdm::Cell* cell = pin->GetCell();
    if (!cell || cell == last_cell) continue;
    last_cell = cell;
    const cdm::LibCell* lib_cell = cell->GetRefLibCell();
    if (!lib_cell) continue;
    auto found = templates.find(lib_cell);
    if (found == templates.end()) found = templates.emplace(lib_cell, MakeTemplates(*cell)).first;
    for (const EdgeTemplate& item : found->second) {
      const uint32_t from = cell->GetPin(item.from_pin)->GetVertexId();
      const uint32_t to = cell->GetPin(item.to_pin)->GetVertexId();
      graph.AddEdge(Edge{from, to, item.arc_set, item.role, item.arcs, 0});
    }
  }

  // Wires: every driver of a flat net to every load of it.
  std::vector<cdm::Pin*> loads;
  for (cdm::Pin* pin : pins) {
    if (!pin->IsNetDriver() || !pin->GetNet()) continue;
    loads.clear();
    pin->GetFanoutPins(loads, cdm::kHierFlat);
    for (cdm::Pin* load : loads) {
      const uint32_t to = load->GetVertexId();
      if (to == 0 || to == pin->GetVertexId() || !graph.HasVertex(to)) continue;
      graph.AddEdge(Edge{pin->GetVertexId(), to, nullptr, EdgeRole::kWire, kArcsUnate, 0});
    }
  }
  graph.Finish();
}

}  // namespace sta
