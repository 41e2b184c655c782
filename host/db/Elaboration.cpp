#include "db/Elaboration.h"

#include <unistd.h>

#include <cstdio>
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

// What the copies below one instance of a design add up to (the design's
// own objects not counted). Sums saturate: a small file may describe
// more than fits in 64 bits.
struct Elaboration::Totals {
  uint64_t copies = 0;
  uint64_t cells = 0;
  uint64_t nets = 0;
  uint64_t pins = 0;
  uint64_t vertices = 0;
};

namespace {

constexpr uint64_t kSaturated = uint64_t{1} << 62;

uint64_t Add(uint64_t a, uint64_t b) {
  return a + b > kSaturated ? kSaturated : a + b;
}

uint64_t Times(uint64_t count, uint64_t bytes) {
  return count > kSaturated / bytes ? kSaturated : count * bytes;
}

// The vertices of a netlist's own leaf cells: one per pin, two per inout.
uint64_t LeafVertices(const Netlist* netlist) {
  uint64_t count = 0;
  for (uint32_t i = 0; i < netlist->CellCount(); ++i) {
    if (netlist->Cells()[i].GetRefDesign()) continue;
    uint32_t first = netlist->CellFirstPin(i);
    for (uint32_t p = first; p < first + netlist->CellPinCount(i); ++p) {
      const Pin* pin = netlist->PinAt(p);
      count += pin->IsNetDriver() && pin->IsNetLoad() ? 2 : 1;
    }
  }
  return count;
}

bool Refuse(const char* what, uint64_t count, uint64_t limit, const Design* top,
            std::string& error) {
  if (count <= limit) return true;
  error = "design '" + top->Name() + "' would elaborate into " +
          (count >= kSaturated ? "more than 2^62" : std::to_string(count)) + " " + what +
          ", more than the " + std::to_string(limit) + " the database can number";
  return false;
}

uint64_t PhysicalMemoryBytes() {
  long pages = sysconf(_SC_PHYS_PAGES);
  long page_size = sysconf(_SC_PAGE_SIZE);
  return pages > 0 && page_size > 0 ? static_cast<uint64_t>(pages) * page_size : 0;
}

}  // namespace

Elaboration::Elaboration(Design* top) : top_(top) {}

Elaboration::~Elaboration() = default;

bool Elaboration::Plan(Totals& whole, std::string& error) {
  // Post-order over the designs below the top, without recursion: modules
  // may nest deeply. Each definition is visited once, however often used.
  struct Counts {
    Totals below;
    uint64_t leaf_vertices = 0;
  };
  std::unordered_map<const Design*, Counts> counts;
  std::vector<std::pair<Design*, uint32_t>> stack{{top_, 0}};
  NetlistEditor::IndexHierarchicalCells(top_->GetNetlist());
  while (!stack.empty()) {
    Design* design = stack.back().first;
    const Netlist* netlist = design->GetNetlist();
    uint32_t index = stack.back().second++;
    if (index < netlist->CellCount()) {
      Design* child = netlist->Cells()[index].GetRefDesign();
      // Marked when first met; link has refused hierarchies that recurse.
      if (child && counts.emplace(child, Counts()).second) {
        NetlistEditor::IndexHierarchicalCells(child->GetNetlist());
        stack.emplace_back(child, 0);
      }
      continue;
    }
    Counts own;
    own.leaf_vertices = LeafVertices(netlist);
    for (const Cell& cell : netlist->Cells()) {
      const Design* child = cell.GetRefDesign();
      if (!child) continue;
      const Netlist* definition = child->GetNetlist();
      const Counts& sub = counts[child];
      Totals& t = own.below;
      t.copies = Add(t.copies, Add(1, sub.below.copies));
      t.cells = Add(t.cells, Add(definition->CellCount(), sub.below.cells));
      t.nets = Add(t.nets, Add(definition->NetCount(), sub.below.nets));
      t.pins = Add(t.pins, Add(definition->PinCount(), sub.below.pins));
      t.vertices = Add(t.vertices, Add(sub.leaf_vertices, sub.below.vertices));
    }
    counts[design] = own;
    stack.pop_back();
  }
  const Netlist* top = top_->GetNetlist();
  const Counts& top_counts = counts[top_];
  whole = top_counts.below;
  uint64_t top_port_vertices = 0;
  for (uint32_t i = 0; i < top->PortPinCount(); ++i) {
    const Pin* pin = top->PinAt(i);
    top_port_vertices += pin->GetDirection() == kDirInout ? 2 : 1;
  }
  whole.vertices = Add(whole.vertices, Add(top_counts.leaf_vertices, top_port_vertices));
  const uint64_t limit = UINT32_MAX - 1;
  return Refuse("hierarchical instances", whole.copies, limit, top_, error) &&
         Refuse("nets", Add(whole.nets, top->NetCount()), limit, top_, error) &&
         Refuse("timing vertices", whole.vertices, limit, top_, error) &&
         FitsInMemory(whole, error);
}

bool Elaboration::FitsInMemory(const Totals& whole, std::string& error) const {
  // What the arrays below will take, and the flat-net pass's working
  // arrays: refused up front, as the pages would otherwise be claimed one
  // by one until the system ends the process.
  const uint64_t all_nets = Add(whole.nets, top_->GetNetlist()->NetCount());
  uint64_t bytes = 0;
  for (uint64_t part :
       {Times(whole.copies, sizeof(Netlist) + sizeof(Netlist*)), Times(whole.cells, sizeof(Cell)),
        Times(whole.nets, sizeof(Net)), Times(whole.pins, sizeof(Pin)),
        Times(whole.vertices, sizeof(Pin*) + sizeof(uint32_t)),
        Times(all_nets, 2 * sizeof(uint32_t) + sizeof(FlatNetRecord))})
    bytes = Add(bytes, part);
  const uint64_t memory = PhysicalMemoryBytes();
  if (!memory || bytes <= memory) return true;
  char text[160];
  std::snprintf(text, sizeof text, "about %.1f GB to elaborate, more than the %.1f GB of memory",
                static_cast<double>(bytes) / 1e9, static_cast<double>(memory) / 1e9);
  error = "design '" + top_->Name() + "' would need " + text + " this machine has";
  return false;
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

void Elaboration::MakeChildren(Netlist* netlist) {
  NetlistEditor::SetFirstChild(netlist, static_cast<uint32_t>(copies_.size()));
  for (Cell& cell : netlist->Cells()) {
    Design* design = cell.GetRefDesign();
    if (!design) continue;
    // Each copy's objects follow the previous copy's in the arrays.
    Cell* cells = cells_.get();
    Net* nets = nets_.get();
    Pin* pins = pins_.get();
    if (copies_.size()) {
      const Netlist& last = copies_[copies_.size() - 1];
      cells = last.Cells().end();
      nets = last.Nets().end();
      pins = last.PinAt(last.PinCount());
    }
    Netlist* copy = copies_.Emplace(*design->GetNetlist(), &cell, this, cells, nets, pins);
    NetlistEditor::InitInstance(copy);
  }
}

bool Elaboration::Build(std::string& error) {
  Totals totals;
  if (!Plan(totals, error)) return false;
  copies_.Reserve(totals.copies);
  cells_ = ObjectArray<Cell>(totals.cells);
  nets_ = ObjectArray<Net>(totals.nets);
  pins_ = ObjectArray<Pin>(totals.pins);
  Netlist* top = top_->GetNetlist();
  NetlistEditor::AttachTop(top, this);
  vertices_.reserve(totals.vertices + 1);
  vertices_.assign(1, nullptr);
  netlists_.reserve(totals.copies + 1);
  netlists_.assign(1, top);
  NumberPins(top, 0, top->PortPinCount());
  MakeChildren(top);
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
    Netlist* copy = netlist->ChildOf(&cell);
    if (!copy) {
      NumberPins(netlist, netlist->CellFirstPin(index), netlist->CellPinCount(index));
      continue;
    }
    netlists_.push_back(copy);
    MakeChildren(copy);
    stack.push_back(Frame{copy, 0});
  }
  BuildFlatNets();
  return true;
}

uint32_t Elaboration::GlobalNetIndex(const Net* net) const {
  const Netlist* top = top_->GetNetlist();
  if (net->GetNetlist() == top) return top->IndexOf(net);
  return top->NetCount() + static_cast<uint32_t>(net - nets_.get());
}

void Elaboration::BuildFlatNets() {
  // Every net of every netlist gets a global number; nets that meet at a
  // hierarchical pin are joined; each class is one flat net.
  const uint32_t total = top_->GetNetlist()->NetCount() + static_cast<uint32_t>(nets_.size());
  PodArray<uint32_t> parent;
  parent.resize(total);
  for (uint32_t i = 0; i < total; ++i) parent[i] = i;
  for (Netlist* netlist : netlists_) {
    for (Cell& cell : netlist->Cells()) {
      Netlist* child = cell.GetChildNetlist();
      if (!child) continue;
      for (uint32_t i = 0; i < cell.PinCount(); ++i) {
        Net* outer = cell.GetPin(i)->GetNet();
        Pin* port_pin = child->PortPin(i);
        Net* inner = port_pin ? port_pin->GetNet() : nullptr;
        if (!outer || !inner) continue;
        uint32_t a = FindRoot(parent, GlobalNetIndex(outer));
        uint32_t b = FindRoot(parent, GlobalNetIndex(inner));
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
    for (Net& net : netlist->Nets()) {
      uint32_t root = FindRoot(parent, GlobalNetIndex(&net));
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
  netlists_.clear();
  copies_ = ObjectArray<Netlist>();
  cells_ = ObjectArray<Cell>();
  nets_ = ObjectArray<Net>();
  pins_ = ObjectArray<Pin>();
  flat_nets_.clear();
  flat_vertices_.clear();
  vertices_.clear();
}

size_t Elaboration::Bytes() const {
  size_t bytes = sizeof(*this) + flat_nets_.capacity() * sizeof(FlatNetRecord) +
                 flat_vertices_.capacity() * sizeof(uint32_t) + vertices_.capacity() * sizeof(Pin*);
  bytes += copies_.capacity() * sizeof(Netlist) + cells_.size() * sizeof(Cell) +
           nets_.size() * sizeof(Net) + pins_.size() * sizeof(Pin) +
           netlists_.capacity() * sizeof(Netlist*);
  return bytes;
}

}  // namespace cdm
