#include "db/Netlist.h"

#include <algorithm>

#include "db/Elaboration.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Port.h"

namespace cdm {

Netlist::Netlist(Design* design)
    : design_(design), definition_(this), definition_data_(std::make_unique<DefinitionData>()) {}

Netlist::Netlist(const Netlist& definition, Cell* instance, Elaboration* elaboration, Cell* cells,
                 Net* nets, Pin* pins)
    : design_(definition.design_),
      instance_(instance),
      definition_(&definition),
      cells_(cells),
      nets_(nets),
      pins_(pins),
      cell_count_(definition.cell_count_),
      net_count_(definition.net_count_),
      pin_count_(definition.pin_count_),
      port_pin_count_(definition.port_pin_count_),
      elaboration_(elaboration) {
  for (uint32_t i = 0; i < cell_count_; ++i) {
    const Cell& from = definition.cells_[i];
    Cell& to = cells_[i];
    to.netlist_ = this;
    to.ref_ = from.ref_;
    to.name_kind_ = from.name_kind_;
    to.first_pin_ = from.first_pin_;
  }
  for (uint32_t i = 0; i < net_count_; ++i) {
    const Net& from = definition.nets_[i];
    Net& to = nets_[i];
    to.netlist_ = this;
    to.name_const_ = from.name_const_;
    to.first_pin_ref_ = from.first_pin_ref_;
  }
  const uintptr_t own_tag = reinterpret_cast<uintptr_t>(this) | 1;
  for (uint32_t i = 0; i < pin_count_; ++i) {
    const Pin& from = definition.pins_[i];
    Pin& to = pins_[i];
    if (Cell* cell = from.GetCell())
      to.owner_ = reinterpret_cast<uintptr_t>(&cells_[definition.IndexOf(cell)]);
    else
      to.owner_ = own_tag;
    to.port_ = from.port_;
    to.net_flags_ = from.net_flags_;
    if (from.port_) to.SetName(&from.port_->Name());
  }
}

Netlist::~Netlist() = default;

std::string Netlist::PathPrefix() const {
  if (!instance_) return std::string();
  return instance_->GetFullName() + "/";
}

std::string_view Netlist::CellName(uint32_t index) const {
  return Shared().names.View(cells_[index].name_kind_ & Cell::kNameMask);
}

std::string_view Netlist::NetName(uint32_t index) const {
  return Shared().names.View(nets_[index].name_const_ & Net::kNameMask);
}

const std::string& Netlist::CellNameString(uint32_t index) const {
  const Netlist* def = definition_;
  const DefinitionData& shared = Shared();
  if (!shared.cell_strings) {
    shared.cell_strings = std::make_unique<std::string[]>(def->cell_count_);
    for (uint32_t i = 0; i < def->cell_count_; ++i)
      shared.cell_strings[i] = std::string(def->CellName(i));
  }
  return shared.cell_strings[index];
}

const std::string& Netlist::NetNameString(uint32_t index) const {
  const Netlist* def = definition_;
  const DefinitionData& shared = Shared();
  if (!shared.net_strings) {
    shared.net_strings = std::make_unique<std::string[]>(def->net_count_);
    for (uint32_t i = 0; i < def->net_count_; ++i)
      shared.net_strings[i] = std::string(def->NetName(i));
  }
  return shared.net_strings[index];
}

Cell* Netlist::FindCell(std::string_view name) const {
  const Netlist* def = definition_;
  const DefinitionData& shared = Shared();
  if (!shared.cell_index) {
    shared.cell_index = std::make_unique<NameIndex>([def](uint32_t i) { return def->CellName(i); });
    shared.cell_index->Reserve(def->cell_count_);
    for (uint32_t i = 0; i < def->cell_count_; ++i) shared.cell_index->Insert(def->CellName(i), i);
  }
  uint32_t index = shared.cell_index->Find(name);
  return index == NameIndex::kNone ? nullptr : &cells_[index];
}

Net* Netlist::FindNet(std::string_view name) const {
  const Netlist* def = definition_;
  const DefinitionData& shared = Shared();
  if (!shared.net_index) {
    // Values below the net count are nets; above, aliases (count + i).
    shared.net_index = std::make_unique<NameIndex>([def, &shared](uint32_t value) {
      return value < def->net_count_
                 ? def->NetName(value)
                 : shared.names.View(shared.aliases[value - def->net_count_].first);
    });
    shared.net_index->Reserve(shared.named_net_count + shared.aliases.size());
    for (uint32_t i = 0; i < shared.named_net_count; ++i)
      shared.net_index->Insert(def->NetName(i), i);
    for (uint32_t i = 0; i < shared.aliases.size(); ++i)
      shared.net_index->Insert(shared.names.View(shared.aliases[i].first), def->net_count_ + i);
  }
  uint32_t value = shared.net_index->Find(name);
  if (value == NameIndex::kNone) return nullptr;
  if (value >= def->net_count_) value = shared.aliases[value - def->net_count_].second;
  return &nets_[value];
}

Net* Netlist::ConstNet(int value) const {
  uint32_t index = Shared().tie_net[value ? 1 : 0];
  return index == UINT32_MAX ? nullptr : &nets_[index];
}

uint32_t Netlist::CellPinCount(uint32_t cell_index) const {
  uint32_t first = cells_[cell_index].first_pin_;
  uint32_t last = cell_index + 1 < cell_count_ ? cells_[cell_index + 1].first_pin_ : pin_count_;
  return last > first ? last - first : 0;
}

NetPinRange Netlist::NetPins(uint32_t net_index) const {
  const PodArray<uint32_t>& refs = Shared().net_pins;
  if (refs.empty()) return NetPinRange(pins_, nullptr, nullptr);
  uint32_t first = nets_[net_index].first_pin_ref_;
  uint32_t last = net_index + 1 < net_count_ ? nets_[net_index + 1].first_pin_ref_
                                             : static_cast<uint32_t>(refs.size());
  return NetPinRange(pins_, refs.data() + first, refs.data() + last);
}

Netlist* Netlist::ChildOf(const Cell* cell) const {
  if (!elaboration_) return nullptr;
  const PodArray<uint32_t>& hierarchical = Shared().hierarchical_cells;
  const uint32_t index = IndexOf(cell);
  const uint32_t* found = std::lower_bound(hierarchical.begin(), hierarchical.end(), index);
  if (found == hierarchical.end() || *found != index) return nullptr;
  return elaboration_->Copy(first_child_ + static_cast<uint32_t>(found - hierarchical.begin()));
}

size_t Netlist::Bytes() const {
  size_t bytes = sizeof(*this) + cell_count_ * sizeof(Cell) + net_count_ * sizeof(Net) +
                 pin_count_ * sizeof(Pin);
  if (IsDefinition()) {
    const DefinitionData& shared = Shared();
    bytes += sizeof(shared) + shared.names.Bytes() + shared.net_pins.size() * sizeof(uint32_t) +
             shared.source.Bytes() + shared.aliases.size() * sizeof(shared.aliases[0]) +
             shared.hierarchical_cells.size() * sizeof(uint32_t);
  }
  return bytes;
}

}  // namespace cdm
