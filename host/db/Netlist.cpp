#include "db/Netlist.h"

#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/cdm/Root.h"

namespace cdm {

Netlist::Netlist(Design* design, Cell* instance) : design_(design), instance_(instance) {}
Netlist::~Netlist() = default;

std::string Netlist::PathPrefix() const {
  if (!instance_) return std::string();
  return instance_->GetFullName() + "/";
}

Cell* Netlist::AddCell(const std::string* name, const std::string* ref_name) {
  cells_.emplace_back(name, ref_name, this);
  return &cells_.back();
}

const std::string* Netlist::OwnName(std::string_view name) {
  own_names_.emplace_back(name);
  return &own_names_.back();
}

void Netlist::IndexNewCells() const {
  if (cells_indexed_ == 0) cell_index_.reserve(cells_.size());
  for (; cells_indexed_ < cells_.size(); ++cells_indexed_) {
    Cell* cell = const_cast<Cell*>(&cells_[cells_indexed_]);
    cell_index_.emplace(cell->Name(), cell);
  }
}

Cell* Netlist::FindCell(const std::string& name) const {
  IndexNewCells();
  auto found = cell_index_.find(name);
  return found == cell_index_.end() ? nullptr : found->second;
}

Net* Netlist::AddNet(const std::string* name) {
  nets_.emplace_back(name, this);
  Net* net = &nets_.back();
  net_index_.emplace(*name, net);
  return net;
}

void Netlist::AddNetAlias(const std::string* alias, Net* net) {
  net_index_[*alias] = net;
}

Net* Netlist::FindNet(const std::string& name) const {
  auto found = net_index_.find(name);
  return found == net_index_.end() ? nullptr : found->second;
}

Net* Netlist::ConstNet(int value) {
  int slot = value ? 1 : 0;
  if (!tie_[slot]) {
    Root* root = DbManager::GetRoot();
    nets_.emplace_back(root->Intern(slot ? "*logic1*" : "*logic0*"), this);
    tie_[slot] = &nets_.back();
    tie_[slot]->SetConstValue(slot);
  }
  return tie_[slot];
}

size_t Netlist::NamedNetCount() const {
  return nets_.size() - (tie_[0] ? 1 : 0) - (tie_[1] ? 1 : 0);
}

void Netlist::MakePortPins() {
  const std::vector<Port*>& ports = design_->Ports();
  port_pin_count_ = static_cast<uint32_t>(ports.size());
  port_pins_ = std::make_unique<Pin[]>(port_pin_count_);
  for (uint32_t i = 0; i < port_pin_count_; ++i)
    port_pins_[i].Init(ports[i], nullptr, this, Pin::kPortPin);
}

Port* Netlist::StubPort(const std::string* name) {
  for (const auto& port : stub_ports_)
    if (&port->Name() == name) return port.get();
  stub_ports_.push_back(std::make_unique<Port>(name, kDirInternal));
  return stub_ports_.back().get();
}

UnresolvedReference* Netlist::Unresolved(const std::string* name) {
  for (const auto& ref : unresolved_)
    if (&ref->Name() == name) return ref.get();
  unresolved_.push_back(std::make_unique<UnresolvedReference>(name, design_->Owner()));
  return unresolved_.back().get();
}

std::unique_ptr<Netlist> Netlist::CloneFor(Cell* instance) const {
  auto copy = std::make_unique<Netlist>(design_, instance);
  std::unordered_map<const Pin*, Pin*> pin_map;
  std::unordered_map<const Net*, Net*> net_map;
  for (const Net& net : nets_) {
    Net* twin = copy->AddNet(&net.Name());
    twin->SetConstValue(net.LocalConstValue());
    net_map.emplace(&net, twin);
    if (&net == tie_[0]) copy->tie_[0] = twin;
    if (&net == tie_[1]) copy->tie_[1] = twin;
  }
  for (const auto& entry : aliases_) copy->aliases_[entry.first] = net_map[entry.second];
  for (const Cell& cell : cells_) {
    Cell* twin = copy->AddCell(&cell.Name(), &cell.GetRefName());
    twin->Bind(cell.GetRef(), cell.GetRefDesign(), cell.GetRefLibCell(), cell.PinCount());
    for (uint32_t i = 0; i < cell.PinCount(); ++i) {
      const Pin* pin = cell.GetPin(i);
      Pin* twin_pin = twin->GetPin(i);
      twin_pin->Init(pin->GetPort(), twin, nullptr, pin->Flags());
      pin_map.emplace(pin, twin_pin);
    }
  }
  copy->MakePortPins();
  for (uint32_t i = 0; i < port_pin_count_; ++i) {
    copy->port_pins_[i].SetFlags(port_pins_[i].Flags());
    pin_map.emplace(&port_pins_[i], &copy->port_pins_[i]);
  }
  for (const Net& net : nets_) {
    Net* twin = net_map[&net];
    for (Pin* pin : net.Pins()) {
      Pin* twin_pin = pin_map[pin];
      twin_pin->SetNet(twin);
      twin->AddPin(twin_pin);
    }
  }
  copy->source_ = source_;
  copy->linked_ = linked_;
  return copy;
}

Netlist* Netlist::AddClone(std::unique_ptr<Netlist> clone) {
  clones_.push_back(std::move(clone));
  return clones_.back().get();
}

}  // namespace cdm
