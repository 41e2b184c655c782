#include "db/NetlistEditor.h"

#include "db/Elaboration.h"
#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/cdm/Root.h"

namespace cdm {

uint8_t NetlistEditor::DirectionFlags(uint8_t direction, bool inside) {
  // A port drives the net inside the design when it is an input, and the
  // net outside (through the cell's pin) when it is an output.
  if (direction == kDirInout) return Pin::kDriver | Pin::kLoad;
  // Pins of unresolved cells have no known direction: show them as loads.
  if (direction == kDirInternal) return Pin::kLoad;
  bool drives = inside ? direction == kDirInput : direction == kDirOutput;
  return drives ? Pin::kDriver : Pin::kLoad;
}

Port* NetlistEditor::AddPort(Design* design, std::unique_ptr<Port> port, DesignPortBus* bus) {
  port->SetBus(bus);
  return design->AddPort(std::move(port));
}

DesignPortBus* NetlistEditor::AddPortBus(Design* design, std::unique_ptr<DesignPortBus> bus) {
  return design->AddPortBus(std::move(bus));
}

DesignNetBus* NetlistEditor::AddNetBus(Design* design, std::unique_ptr<DesignNetBus> bus) {
  return design->AddNetBus(std::move(bus));
}

bool NetlistEditor::Fill(Root* root, Netlist* netlist, ModuleDraft&& draft, std::string& error) {
  const uint32_t cells = static_cast<uint32_t>(draft.cell_names.size());
  const uint32_t named = static_cast<uint32_t>(draft.net_names.size());
  bool tie0 = draft.source.UsesConstant(kBitConst0);
  bool tie1 = draft.source.UsesConstant(kBitConst1);
  const uint32_t nets = named + (tie0 ? 1 : 0) + (tie1 ? 1 : 0);
  if (nets >= Pin::kNetMask) {
    error = "module '" + netlist->GetDesign()->Name() + "' has " + std::to_string(nets) +
            " nets, more than the " + std::to_string(Pin::kNetMask - 1) + " a module may have";
    return false;
  }
  netlist->definition_data_->names = std::move(draft.names);
  uint32_t tie_names[2] = {0, 0};
  if ((tie0 && !netlist->definition_data_->names.Add("*logic0*", tie_names[0])) ||
      (tie1 && !netlist->definition_data_->names.Add("*logic1*", tie_names[1]))) {
    error = "module '" + netlist->GetDesign()->Name() + "' has more names than fit in 1 GiB";
    return false;
  }
  netlist->definition_data_->names.ShrinkToFit();
  netlist->cell_count_ = cells;
  netlist->definition_data_->cells = ObjectArray<Cell>(cells);
  netlist->cells_ = netlist->definition_data_->cells.get();
  for (uint32_t i = 0; i < cells; ++i) {
    Cell& cell = netlist->cells_[i];
    cell.netlist_ = netlist;
    cell.name_kind_ = draft.cell_names[i];
    cell.ref_ = Unresolved(netlist, draft.cell_refs[i]);
  }
  for (auto& entry : draft.cell_attributes)
    netlist->cells_[entry.first].SetAttribute(std::move(entry.second));
  netlist->net_count_ = nets;
  netlist->definition_data_->named_net_count = named;
  netlist->definition_data_->nets = ObjectArray<Net>(nets);
  netlist->nets_ = netlist->definition_data_->nets.get();
  for (uint32_t i = 0; i < named; ++i) {
    Net& net = netlist->nets_[i];
    net.netlist_ = netlist;
    net.name_const_ = draft.net_names[i] | (static_cast<uint32_t>(draft.net_ties[i] + 1) << 30);
  }
  uint32_t next = named;
  for (int value = 0; value < 2; ++value) {
    if (!(value ? tie1 : tie0)) continue;
    Net& net = netlist->nets_[next];
    net.netlist_ = netlist;
    net.name_const_ = tie_names[value] | (static_cast<uint32_t>(value + 1) << 30);
    netlist->definition_data_->tie_net[value] = next++;
  }
  netlist->definition_data_->aliases = std::move(draft.aliases);
  netlist->definition_data_->source = std::move(draft.source);
  (void)root;
  return true;
}

UnresolvedReference* NetlistEditor::Unresolved(Netlist* netlist, const std::string* name) {
  auto& slot = netlist->definition_data_->unresolved[name];
  if (!slot) slot = std::make_unique<UnresolvedReference>(name, netlist->GetDesign()->Owner());
  return slot.get();
}

Port* NetlistEditor::StubPort(Root* root, Netlist* netlist, const std::string& name) {
  const std::string* interned = root->Intern(name);
  auto& slot = netlist->definition_data_->stub_ports[interned];
  if (!slot) slot = std::make_unique<Port>(interned, kDirInternal);
  return slot.get();
}

void NetlistEditor::BindCell(Netlist* netlist, uint32_t index, Reference* ref, int kind,
                             uint32_t first_pin) {
  Cell& cell = netlist->cells_[index];
  cell.ref_ = ref;
  cell.name_kind_ = (cell.name_kind_ & Cell::kNameMask) | (static_cast<uint32_t>(kind) << 30);
  cell.first_pin_ = first_pin;
}

void NetlistEditor::MakePins(Netlist* netlist, uint32_t count) {
  netlist->definition_data_->pins = ObjectArray<Pin>(count);
  netlist->pins_ = netlist->definition_data_->pins.get();
  netlist->pin_count_ = count;
  netlist->port_pin_count_ = static_cast<uint32_t>(netlist->GetDesign()->Ports().size());
  netlist->definition_data_->net_pins.clear();
  netlist->definition_data_->linked = false;
}

void NetlistEditor::InitPin(Pin* pin, Port* port, Cell* cell, Netlist* netlist, uint8_t flags) {
  pin->owner_ =
      cell ? reinterpret_cast<uintptr_t>(cell) : (reinterpret_cast<uintptr_t>(netlist) | 1);
  pin->port_ = port;
  pin->net_flags_ = static_cast<uint32_t>(flags) << Pin::kNetBits;
  pin->vertex_id_ = 0;
  pin->SetName(port ? &port->Name() : nullptr);
}

void NetlistEditor::Connect(Pin* pin, uint32_t net_index) {
  if (pin->NetSlot()) return;
  pin->net_flags_ |= net_index + 1;
}

void NetlistEditor::FinishLink(Netlist* netlist) {
  // Pins grouped by net, each group in pin order: a counting sort.
  PodArray<uint32_t>& refs = netlist->definition_data_->net_pins;
  const uint32_t nets = netlist->net_count_;
  std::vector<uint32_t> count(nets + 1, 0);
  uint32_t connected = 0;
  for (uint32_t i = 0; i < netlist->pin_count_; ++i)
    if (uint32_t slot = netlist->pins_[i].NetSlot()) {
      ++count[slot - 1];
      ++connected;
    }
  uint32_t offset = 0;
  for (uint32_t n = 0; n < nets; ++n) {
    netlist->nets_[n].first_pin_ref_ = offset;
    uint32_t here = count[n];
    count[n] = offset;
    offset += here;
  }
  refs.assign(connected, 0);
  for (uint32_t i = 0; i < netlist->pin_count_; ++i)
    if (uint32_t slot = netlist->pins_[i].NetSlot()) refs[count[slot - 1]++] = i;
  netlist->definition_data_->linked = true;
}

void NetlistEditor::AttachTop(Netlist* top, Elaboration* elaboration) {
  top->elaboration_ = elaboration;
  for (uint32_t i = 0; i < top->port_pin_count_; ++i) {
    Pin& pin = top->pins_[i];
    SetFlags(&pin, Pin::kPortPin | Pin::kTopPort | DirectionFlags(pin.GetDirection(), true));
  }
}

void NetlistEditor::DetachTop(Netlist* top) {
  top->elaboration_ = nullptr;
  for (uint32_t i = 0; i < top->pin_count_; ++i) top->pins_[i].vertex_id_ = 0;
  for (uint32_t i = 0; i < top->port_pin_count_; ++i) {
    Pin& pin = top->pins_[i];
    SetFlags(&pin, Pin::kPortPin | DirectionFlags(pin.GetDirection(), true));
  }
  for (uint32_t i = 0; i < top->net_count_; ++i) top->nets_[i].flat_id_ = 0;
}

void NetlistEditor::IndexHierarchicalCells(Netlist* definition) {
  PodArray<uint32_t>& hierarchical = definition->definition_data_->hierarchical_cells;
  hierarchical.clear();
  for (uint32_t i = 0; i < definition->cell_count_; ++i)
    if (definition->cells_[i].GetRefDesign()) hierarchical.push_back(i);
}

void NetlistEditor::InitInstance(Netlist* copy) {
  for (uint32_t i = 0; i < copy->port_pin_count_; ++i) {
    Pin& pin = copy->pins_[i];
    SetFlags(&pin, Pin::kPortPin | Pin::kHierarchical | DirectionFlags(pin.GetDirection(), true));
  }
}

void NetlistEditor::SetFirstChild(Netlist* netlist, uint32_t copy_number) {
  netlist->first_child_ = copy_number;
}

void NetlistEditor::SetVertexId(Pin* pin, uint32_t id) {
  pin->vertex_id_ = id;
}

void NetlistEditor::SetFlatNetId(Net* net, uint32_t id) {
  net->flat_id_ = id;
}

void NetlistEditor::SetFlags(Pin* pin, uint8_t flags) {
  pin->net_flags_ =
      (pin->net_flags_ & Pin::kNetMask) | (static_cast<uint32_t>(flags) << Pin::kNetBits);
}

}  // namespace cdm
