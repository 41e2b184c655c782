// The contents of one level of hierarchy: a design's own definition, or a
// copy of it elaborated for one more instance of the design. Cells, nets
// and the pins that stand for the design's ports live here.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "db/ModuleSource.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"

namespace cdm {

class Design;
class Port;

class Netlist {
 public:
  Netlist(Design* design, Cell* instance);
  ~Netlist();
  Netlist(const Netlist&) = delete;
  Netlist& operator=(const Netlist&) = delete;

  Design* GetDesign() const { return design_; }
  // The hierarchical cell this netlist is elaborated under; null at the top
  // and for a definition no instance uses.
  Cell* GetInstance() const { return instance_; }
  void SetInstance(Cell* instance) { instance_ = instance; }
  // "u_core/u_alu/" below the top, "" at the top.
  std::string PathPrefix() const;

  // A stable copy of a name unique to this netlist (cells, nets): kept
  // here rather than interned, as nothing else shares it.
  const std::string* OwnName(std::string_view name);

  // Cells in creation order.
  Cell* AddCell(const std::string* name, const std::string* ref_name);
  const std::deque<Cell>& Cells() const { return cells_; }
  std::deque<Cell>& Cells() { return cells_; }
  Cell* FindCell(const std::string& name) const;

  // Nets in creation order. Names may be merged by assign: the alias then
  // finds the surviving net.
  Net* AddNet(const std::string* name);
  void AddNetAlias(const std::string* alias, Net* net);
  const std::deque<Net>& Nets() const { return nets_; }
  std::deque<Net>& Nets() { return nets_; }
  Net* FindNet(const std::string& name) const;
  // The tie net of a bare constant in a connection (value 0 or 1).
  Net* ConstNet(int value);
  bool IsTieNet(const Net* net) const { return net == tie_[0] || net == tie_[1]; }
  size_t NamedNetCount() const;

  // One pin per port of the design, in port order.
  void MakePortPins();
  Pin* PortPin(uint32_t index) const {
    return index < port_pin_count_ ? &port_pins_[index] : nullptr;
  }
  uint32_t PortPinCount() const { return port_pin_count_; }

  // Stub ports for the pins of unresolved cells, and their references,
  // owned here.
  Port* StubPort(const std::string* name);
  UnresolvedReference* Unresolved(const std::string* name);

  // What the reader saw: kept so that link can be run again.
  ModuleSource& Source() { return source_; }
  const ModuleSource& Source() const { return source_; }

  // A copy of this netlist (cells, nets, pins, connections) for `instance`.
  std::unique_ptr<Netlist> CloneFor(Cell* instance) const;

  // Copies elaborated below this netlist when it is the top; owned here.
  Netlist* AddClone(std::unique_ptr<Netlist> clone);
  void ClearClones() { clones_.clear(); }

  bool IsLinked() const { return linked_; }
  void SetLinked(bool linked) { linked_ = linked; }

 private:
  Design* design_;
  Cell* instance_;
  std::deque<Cell> cells_;
  std::deque<Net> nets_;
  // Name indexes, brought up to date on lookup: building them while a
  // million instances are read would cost more than the reading.
  mutable std::unordered_map<std::string_view, Cell*> cell_index_;
  mutable size_t cells_indexed_ = 0;
  void IndexNewCells() const;
  mutable std::unordered_map<std::string_view, Net*> net_index_;
  mutable size_t nets_indexed_ = 0;
  std::unordered_map<std::string_view, Net*> aliases_;
  std::deque<std::string> own_names_;
  Net* tie_[2] = {nullptr, nullptr};
  std::unique_ptr<Pin[]> port_pins_;
  uint32_t port_pin_count_ = 0;
  std::vector<std::unique_ptr<Port>> stub_ports_;
  std::vector<std::unique_ptr<UnresolvedReference>> unresolved_;
  ModuleSource source_;
  std::vector<std::unique_ptr<Netlist>> clones_;
  bool linked_ = false;
};

}  // namespace cdm
