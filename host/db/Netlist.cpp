#include "db/Netlist.h"

#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Port.h"

namespace cdm {

Netlist::Netlist(Design* design) : design_(design), definition_(this) {}

Netlist::Netlist(const Netlist& definition, Cell* instance)
    : design_(definition.design_), instance_(instance), definition_(&definition) {
  cell_count_ = definition.cell_count_;
  cells_ = ObjectArray<Cell>(cell_count_);
  for (uint32_t i = 0; i < cell_count_; ++i) {
    const Cell& from = definition.cells_[i];
    Cell& to = cells_[i];
    to.netlist_ = this;
    to.ref_ = from.ref_;
    to.name_kind_ = from.name_kind_;
    to.first_pin_ = from.first_pin_;
  }
  net_count_ = definition.net_count_;
  nets_ = ObjectArray<Net>(net_count_);
  for (uint32_t i = 0; i < net_count_; ++i) {
    const Net& from = definition.nets_[i];
    Net& to = nets_[i];
    to.netlist_ = this;
    to.name_const_ = from.name_const_;
    to.first_pin_ref_ = from.first_pin_ref_;
  }
  pin_count_ = definition.pin_count_;
  port_pin_count_ = definition.port_pin_count_;
  pins_ = ObjectArray<Pin>(pin_count_);
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
  return definition_->names_.View(cells_[index].name_kind_ & Cell::kNameMask);
}

std::string_view Netlist::NetName(uint32_t index) const {
  return definition_->names_.View(nets_[index].name_const_ & Net::kNameMask);
}

const std::string& Netlist::CellNameString(uint32_t index) const {
  const Netlist* def = definition_;
  if (!def->cell_strings_) {
    def->cell_strings_ = std::make_unique<std::string[]>(def->cell_count_);
    for (uint32_t i = 0; i < def->cell_count_; ++i)
      def->cell_strings_[i] = std::string(def->CellName(i));
  }
  return def->cell_strings_[index];
}

const std::string& Netlist::NetNameString(uint32_t index) const {
  const Netlist* def = definition_;
  if (!def->net_strings_) {
    def->net_strings_ = std::make_unique<std::string[]>(def->net_count_);
    for (uint32_t i = 0; i < def->net_count_; ++i)
      def->net_strings_[i] = std::string(def->NetName(i));
  }
  return def->net_strings_[index];
}

Cell* Netlist::FindCell(std::string_view name) const {
  const Netlist* def = definition_;
  if (!def->cell_index_) {
    def->cell_index_ = std::make_unique<NameIndex>([def](uint32_t i) { return def->CellName(i); });
    def->cell_index_->Reserve(def->cell_count_);
    for (uint32_t i = 0; i < def->cell_count_; ++i) def->cell_index_->Insert(def->CellName(i), i);
  }
  uint32_t index = def->cell_index_->Find(name);
  return index == NameIndex::kNone ? nullptr : &cells_[index];
}

Net* Netlist::FindNet(std::string_view name) const {
  const Netlist* def = definition_;
  if (!def->net_index_) {
    // Values below the net count are nets; above, aliases (count + i).
    def->net_index_ = std::make_unique<NameIndex>([def](uint32_t value) {
      return value < def->net_count_
                 ? def->NetName(value)
                 : def->names_.View(def->aliases_[value - def->net_count_].first);
    });
    def->net_index_->Reserve(def->named_net_count_ + def->aliases_.size());
    for (uint32_t i = 0; i < def->named_net_count_; ++i)
      def->net_index_->Insert(def->NetName(i), i);
    for (uint32_t i = 0; i < def->aliases_.size(); ++i)
      def->net_index_->Insert(def->names_.View(def->aliases_[i].first), def->net_count_ + i);
  }
  uint32_t value = def->net_index_->Find(name);
  if (value == NameIndex::kNone) return nullptr;
  if (value >= def->net_count_) value = def->aliases_[value - def->net_count_].second;
  return &nets_[value];
}

Net* Netlist::ConstNet(int value) const {
  uint32_t index = definition_->tie_net_[value ? 1 : 0];
  return index == UINT32_MAX ? nullptr : &nets_[index];
}

uint32_t Netlist::CellPinCount(uint32_t cell_index) const {
  uint32_t first = cells_[cell_index].first_pin_;
  uint32_t last = cell_index + 1 < cell_count_ ? cells_[cell_index + 1].first_pin_ : pin_count_;
  return last > first ? last - first : 0;
}

NetPinRange Netlist::NetPins(uint32_t net_index) const {
  const PodArray<uint32_t>& refs = definition_->net_pins_;
  if (refs.empty()) return NetPinRange(pins_.get(), nullptr, nullptr);
  uint32_t first = nets_[net_index].first_pin_ref_;
  uint32_t last = net_index + 1 < net_count_ ? nets_[net_index + 1].first_pin_ref_
                                             : static_cast<uint32_t>(refs.size());
  return NetPinRange(pins_.get(), refs.data() + first, refs.data() + last);
}

Netlist* Netlist::ChildOf(const Cell* cell) const {
  if (children_.empty()) return nullptr;
  auto found = children_.find(IndexOf(cell));
  return found == children_.end() ? nullptr : found->second;
}

size_t Netlist::Bytes() const {
  size_t bytes = sizeof(*this) + cell_count_ * sizeof(Cell) + net_count_ * sizeof(Net) +
                 pin_count_ * sizeof(Pin);
  if (IsDefinition())
    bytes += names_.Bytes() + net_pins_.size() * sizeof(uint32_t) + source_.Bytes() +
             aliases_.size() * sizeof(aliases_[0]);
  return bytes;
}

}  // namespace cdm
