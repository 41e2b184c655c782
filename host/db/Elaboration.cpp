#include "db/Elaboration.h"

#include <unordered_map>

#include "db/Netlist.h"
#include "db/NetlistEditor.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"

namespace cdm {
namespace {

uint32_t FindRoot(PodArray<uint32_t>& parent, uint32_t item) {
  uint32_t root = item;
  while (parent[root] != root) root = parent[root];
  while (parent[item] != root) {
    uint32_t next = parent[item];
    parent[item] = root;
    item = next;
  }
  return root;
}

}  // namespace

Elaboration::Elaboration(Design* top) : top_(top) {}

Elaboration::~Elaboration() = default;

size_t Elaboration::ReserveHint(const Netlist* top) {
  // The pins of the whole hierarchy, each module counted once per
  // instance: a bound on the vertices (inout pins aside) that spares the
  // growth copies. Post-order without recursion: modules may nest deeply.
  std::unordered_map<const Design*, size_t> pins;
  std::vector<std::pair<const Design*, uint32_t>> stack{{top->GetDesign(), 0}};
  while (!stack.empty()) {
    const Design* design = stack.back().first;
    const Netlist* netlist = design->GetNetlist();
    uint32_t index = stack.back().second++;
    if (index < netlist->CellCount()) {
      const Design* child = netlist->Cells()[index].GetRefDesign();
      if (child && !pins.count(child)) stack.emplace_back(child, 0);
      continue;
    }
    size_t sum = netlist->PinCount();
    for (const Cell& cell : netlist->Cells())
      if (const Design* child = cell.GetRefDesign()) sum += pins[child];
    pins[design] = sum;
    stack.pop_back();
  }
  return pins[top->GetDesign()];
}

bool Elaboration::VertexDrives(uint32_t id) const {
  const Pin* pin = VertexPin(id);
  if (!pin) return false;
  if (pin->IsNetDriver() && pin->IsNetLoad()) return id == pin->GetVertexId();
  return pin->IsNetDriver();
}

void Elaboration::NumberPins(Netlist* netlist, uint32_t first, uint32_t count) {
  for (uint32_t i = first; i < first + count; ++i) {
    Pin* pin = netlist->PinAt(i);
    uint32_t id = static_cast<uint32_t>(vertices_.size());
    NetlistEditor::SetVertexId(pin, id);
    vertices_.push_back(pin);
    if (pin->IsNetDriver() && pin->IsNetLoad()) vertices_.push_back(pin);
  }
}

void Elaboration::Build() {
  Netlist* top = top_->GetNetlist();
  NetlistEditor::AttachTop(top, this);
  vertices_.assign(1, nullptr);
  vertices_.reserve(ReserveHint(top) + 1);
  netlists_.assign(1, top);
  NumberPins(top, 0, top->PortPinCount());
  // Depth first, each copy right after its cell, as a deep cell walk goes.
  struct Frame {
    Netlist* netlist;
    uint32_t next_cell;
  };
  std::vector<Frame> stack{{top, 0}};
  while (!stack.empty()) {
    Netlist* netlist = stack.back().netlist;
    uint32_t index = stack.back().next_cell;
    if (index == netlist->CellCount()) {
      stack.pop_back();
      continue;
    }
    ++stack.back().next_cell;
    Cell& cell = netlist->Cells()[index];
    Design* design = cell.GetRefDesign();
    if (!design) {
      NumberPins(netlist, netlist->CellFirstPin(index), netlist->CellPinCount(index));
      continue;
    }
    instances_.push_back(NetlistEditor::MakeInstance(*design->GetNetlist(), &cell, this));
    Netlist* copy = instances_.back().get();
    netlists_.push_back(copy);
    stack.push_back(Frame{copy, 0});
  }
  vertices_.shrink_to_fit();
  BuildFlatNets();
}

void Elaboration::BuildFlatNets() {
  // Every net of every netlist gets a global number; nets that meet at a
  // hierarchical pin are joined; each class is one flat net.
  std::unordered_map<const Netlist*, uint32_t> base;
  uint32_t total = 0;
  for (Netlist* netlist : netlists_) {
    base.emplace(netlist, total);
    total += netlist->NetCount();
  }
  PodArray<uint32_t> parent;
  parent.resize(total);
  for (uint32_t i = 0; i < total; ++i) parent[i] = i;
  for (Netlist* netlist : netlists_) {
    uint32_t outer_base = base[netlist];
    for (Cell& cell : netlist->Cells()) {
      Netlist* child = cell.GetChildNetlist();
      if (!child) continue;
      uint32_t inner_base = base[child];
      for (uint32_t i = 0; i < cell.PinCount(); ++i) {
        Net* outer = cell.GetPin(i)->GetNet();
        Pin* port_pin = child->PortPin(i);
        Net* inner = port_pin ? port_pin->GetNet() : nullptr;
        if (!outer || !inner) continue;
        uint32_t a = FindRoot(parent, outer_base + netlist->IndexOf(outer));
        uint32_t b = FindRoot(parent, inner_base + child->IndexOf(inner));
        if (a != b) parent[a > b ? a : b] = a < b ? a : b;
      }
    }
  }
  // Ids in order of the first net of each class: the top's nets first.
  PodArray<uint32_t> id_of;
  id_of.assign(total, 0);
  flat_nets_.reserve(total + 1);
  flat_nets_.assign(1, FlatNetRecord());
  for (Netlist* netlist : netlists_) {
    uint32_t first = base[netlist];
    for (Net& net : netlist->Nets()) {
      uint32_t root = FindRoot(parent, first + netlist->IndexOf(&net));
      if (!id_of[root]) {
        id_of[root] = static_cast<uint32_t>(flat_nets_.size());
        flat_nets_.push_back(FlatNetRecord());
      }
      uint32_t id = id_of[root];
      NetlistEditor::SetFlatNetId(&net, id);
      if (net.LocalConstValue() >= 0) flat_nets_[id].const_value = net.LocalConstValue();
    }
  }
  parent.clear();
  id_of.clear();
  flat_nets_.shrink_to_fit();
  // Vertices by flat net: drivers, then loads, each in vertex order.
  for (uint32_t v = 1; v < vertices_.size(); ++v) {
    Net* net = vertices_[v]->GetNet();
    if (!net) continue;
    FlatNetRecord& record = flat_nets_[net->FlatNetId()];
    ++(VertexDrives(v) ? record.driver_count : record.load_count);
  }
  uint32_t offset = 0;
  for (FlatNetRecord& record : flat_nets_) {
    record.first = offset;
    offset += record.driver_count + record.load_count;
  }
  flat_vertices_.assign(offset, 0);
  // Where the next driver and the next load of each flat net go.
  PodArray<uint32_t> next_driver, next_load;
  next_driver.resize(flat_nets_.size());
  next_load.resize(flat_nets_.size());
  for (size_t id = 0; id < flat_nets_.size(); ++id) {
    next_driver[id] = flat_nets_[id].first;
    next_load[id] = flat_nets_[id].first + flat_nets_[id].driver_count;
  }
  for (uint32_t v = 1; v < vertices_.size(); ++v) {
    Net* net = vertices_[v]->GetNet();
    if (!net) continue;
    uint32_t id = net->FlatNetId();
    flat_vertices_[VertexDrives(v) ? next_driver[id]++ : next_load[id]++] = v;
  }
}

void Elaboration::Release() {
  Netlist* top = top_->GetNetlist();
  NetlistEditor::DetachTop(top);
  instances_.clear();
  netlists_.clear();
  flat_nets_.clear();
  flat_vertices_.clear();
  vertices_.clear();
}

size_t Elaboration::Bytes() const {
  size_t bytes = sizeof(*this) + flat_nets_.capacity() * sizeof(FlatNetRecord) +
                 flat_vertices_.capacity() * sizeof(uint32_t) + vertices_.capacity() * sizeof(Pin*);
  for (const auto& instance : instances_) bytes += instance->Bytes();
  return bytes;
}

}  // namespace cdm
