// A design: one module of the netlist, a shared definition that any number
// of hierarchical cells instantiate.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "hostapi/cdm/Iterator.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/cdm/Reference.h"

namespace cdm {

class Cell;
class Net;
class Netlist;
class NetlistEditor;
class Pin;

// Iterator over ports. This base is an empty walk; designs hand out a
// subclass that walks their ports.
class PortMemberPortIterator : public Iterator<Port> {
 public:
  bool HasNext() override { return false; }
  Port* Next() override { return nullptr; }
};

class Design : public Reference {
 public:
  Design(const std::string* name, std::shared_ptr<Object> owner);
  ~Design() override;

  bool IsDesign() const override { return true; }
  bool IsLibRef() const override { return false; }

  // Cells directly inside the design, in file order; deleted by the caller.
  Iterator<Cell>* CellIter() const;
  // All ports (bus bits one by one), in declaration order.
  PortMemberPortIterator* PortIter() const;
  Iterator<DesignPortBus>* PortBusIter() const;
  Iterator<DesignNetBus>* NetBusIter() const;
  Port* FindPort(const std::string& name) const;
  // The pin that stands for a port inside the design; null if none.
  Pin* FindPin(const std::string& name) const;
  // Direct cells and nets by local name; null if none.
  Cell* FindCell(const std::string& name) const;
  Net* FindNet(const std::string& name) const;

  size_t PortCount() const { return ports_.size(); }
  // Nets after merging by assign, tie nets for bare constants left out.
  size_t NetCount() const;
  size_t CellCount() const;
  const std::vector<Port*>& Ports() const { return ports_; }

  // A design written for a synthetic operator (attribute arithmetic_operator).
  bool IsOperDesign() const { return HasAttribute(AttrId::kArithmeticOperator); }
  // What a report shows as the design's library: the netlist file it was
  // read from. Never null.
  Object* Owner() const { return owner_.get(); }
  const std::string& GetFileName() const { return Owner()->Name(); }

  // The design's own netlist: its definition. For the current design it
  // is also the top of the elaborated hierarchy.
  Netlist* GetNetlist() const { return netlist_.get(); }

 private:
  friend class NetlistEditor;
  Port* AddPort(std::unique_ptr<Port> port);
  DesignPortBus* AddPortBus(std::unique_ptr<DesignPortBus> bus);
  DesignNetBus* AddNetBus(std::unique_ptr<DesignNetBus> bus);
  void IndexPorts() const;

  std::shared_ptr<Object> owner_;
  std::vector<Port*> ports_;
  std::vector<std::unique_ptr<Port>> port_store_;
  std::vector<std::unique_ptr<DesignPortBus>> port_buses_;
  std::vector<std::unique_ptr<DesignNetBus>> net_buses_;
  std::unique_ptr<Netlist> netlist_;
  // Port names to positions, made on the first look-up.
  mutable std::unique_ptr<std::unordered_map<std::string_view, uint32_t>> port_index_;
};

}  // namespace cdm
