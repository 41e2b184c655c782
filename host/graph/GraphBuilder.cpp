#include "graph/GraphBuilder.h"

#include <unordered_map>
#include <vector>

#include "db/Elaboration.h"
#include "graph/ArcRoles.h"
#include "graph/TimingGraph.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/Pin.h"

namespace sta {
namespace {

// The edges one library cell contributes, by pin position, worked out once
// per library cell and stamped out for every instance (link gives every
// instance of a library cell its pins in the cell's port order).
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

uint32_t DriverVertex(const cdm::Pin* pin) {
  return pin->GetVertexId();
}

uint32_t LoadVertex(const cdm::Pin* pin) {
  return pin->GetVertexId() + (pin->IsNetDriver() && pin->IsNetLoad() ? 1 : 0);
}

namespace {

void AddCellEdges(const cdm::Cell& cell,
                  std::unordered_map<const cdm::LibCell*, std::vector<EdgeTemplate>>& templates,
                  TimingGraph& graph) {
  const cdm::LibCell* lib_cell = cell.GetRefLibCell();
  if (!lib_cell) return;
  auto found = templates.find(lib_cell);
  if (found == templates.end()) found = templates.emplace(lib_cell, MakeTemplates(cell)).first;
  for (const EdgeTemplate& item : found->second) {
    const cdm::Pin* from_pin = cell.GetPin(item.from_pin);
    const cdm::Pin* to_pin = cell.GetPin(item.to_pin);
    // Checks join the loading halves of both pins; other arcs run from the
    // input's loading half to the output's driving half.
    const uint32_t from = LoadVertex(from_pin);
    const uint32_t to = IsCheck(item.role) || item.role == EdgeRole::kOtherCheck
                            ? LoadVertex(to_pin)
                            : DriverVertex(to_pin);
    graph.AddEdge(Edge{from, to, item.arc_set, item.role, item.arcs, 0});
  }
}

}  // namespace

void BuildTimingGraph(const cdm::Elaboration& elaboration, TimingGraph& graph) {
  const uint32_t count = elaboration.VertexCount();
  graph.ResetVertices(count);
  for (uint32_t id = 1; id <= count; ++id) {
    const bool drives = elaboration.VertexDrives(id);
    graph.SetVertex(id, elaboration.VertexPin(id), drives, !drives);
  }

  // Cell arcs, each cell once: its pins have consecutive vertices.
  std::unordered_map<const cdm::LibCell*, std::vector<EdgeTemplate>> templates;
  const cdm::Cell* last_cell = nullptr;
  for (uint32_t id = 1; id <= count; ++id) {
    const cdm::Cell* cell = elaboration.VertexPin(id)->GetCell();
    if (!cell || cell == last_cell) continue;
    last_cell = cell;
    AddCellEdges(*cell, templates, graph);
  }

  // Wires: every driver of a flat net to every load of it (the two halves
  // of one inout pin are not joined).
  for (uint32_t net = 1; net <= elaboration.FlatNetCount(); ++net) {
    const cdm::FlatNetRecord& record = elaboration.FlatNet(net);
    const uint32_t* drivers = elaboration.FlatNetDrivers(net);
    const uint32_t* loads = elaboration.FlatNetLoads(net);
    for (uint32_t d = 0; d < record.driver_count; ++d) {
      const cdm::Pin* driver_pin = elaboration.VertexPin(drivers[d]);
      for (uint32_t l = 0; l < record.load_count; ++l) {
        if (elaboration.VertexPin(loads[l]) == driver_pin) continue;
        graph.AddEdge(Edge{drivers[d], loads[l], nullptr, EdgeRole::kWire, kArcsUnate, 0});
      }
    }
  }
  graph.Finish();
}

}  // namespace sta
