#include "hostapi/cdm/Design.h"

#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"

namespace cdm {
namespace {

// Walks the ports of a design in declaration order.
class DesignPortIterator : public PortMemberPortIterator {
 public:
  explicit DesignPortIterator(const std::vector<Port*>& ports) : ports_(ports) {}
  bool HasNext() override { return next_ < ports_.size(); }
  Port* Next() override { return next_ < ports_.size() ? ports_[next_++] : nullptr; }

 private:
  std::vector<Port*> ports_;
  size_t next_ = 0;
};

// Walks the cells of a netlist without copying them.
class NetlistCellIterator : public Iterator<Cell> {
 public:
  explicit NetlistCellIterator(Span<Cell> cells) : cells_(cells) {}
  bool HasNext() override { return next_ < cells_.size(); }
  Cell* Next() override { return next_ < cells_.size() ? &cells_[next_++] : nullptr; }

 private:
  Span<Cell> cells_;
  size_t next_ = 0;
};

template <class T>
std::vector<T*> Pointers(const std::vector<std::unique_ptr<T>>& owned) {
  std::vector<T*> items;
  items.reserve(owned.size());
  for (const auto& item : owned) items.push_back(item.get());
  return items;
}

}  // namespace

Design::Design(const std::string* name, std::shared_ptr<Object> owner)
    : Reference(name),
      owner_(owner ? std::move(owner) : std::make_shared<Object>(nullptr)),
      netlist_(std::make_unique<Netlist>(this)) {}

Design::~Design() = default;

Iterator<Cell>* Design::CellIter() const {
  return new NetlistCellIterator(netlist_->Cells());
}

PortMemberPortIterator* Design::PortIter() const {
  return new DesignPortIterator(ports_);
}

Iterator<DesignPortBus>* Design::PortBusIter() const {
  return new VectorIterator<DesignPortBus>(Pointers(port_buses_));
}

Iterator<DesignNetBus>* Design::NetBusIter() const {
  return new VectorIterator<DesignNetBus>(Pointers(net_buses_));
}

void Design::IndexPorts() const {
  port_index_ = std::make_unique<std::unordered_map<std::string_view, uint32_t>>();
  port_index_->reserve(ports_.size());
  for (uint32_t i = 0; i < ports_.size(); ++i) port_index_->emplace(ports_[i]->Name(), i);
}

Port* Design::FindPort(const std::string& name) const {
  if (!port_index_ || port_index_->size() != ports_.size()) IndexPorts();
  auto found = port_index_->find(name);
  return found == port_index_->end() ? nullptr : ports_[found->second];
}

Pin* Design::FindPin(const std::string& name) const {
  Port* port = FindPort(name);
  return port ? netlist_->PortPin(port->GetIndex()) : nullptr;
}

Cell* Design::FindCell(const std::string& name) const {
  return netlist_->FindCell(name);
}

Net* Design::FindNet(const std::string& name) const {
  return netlist_->FindNet(name);
}

size_t Design::NetCount() const {
  return netlist_->NamedNetCount();
}

size_t Design::CellCount() const {
  return netlist_->CellCount();
}

Port* Design::AddPort(std::unique_ptr<Port> port) {
  port->SetDesign(this, static_cast<uint32_t>(ports_.size()));
  ports_.push_back(port.get());
  port_store_.push_back(std::move(port));
  return ports_.back();
}

DesignPortBus* Design::AddPortBus(std::unique_ptr<DesignPortBus> bus) {
  port_buses_.push_back(std::move(bus));
  return port_buses_.back().get();
}

DesignNetBus* Design::AddNetBus(std::unique_ptr<DesignNetBus> bus) {
  net_buses_.push_back(std::move(bus));
  return net_buses_.back().get();
}

}  // namespace cdm
