// The contents of one level of hierarchy: a design's own definition, or
// the copy of a definition made for one instance of it in the elaborated
// design. Cells, nets and pins live in arrays made once; the pins of a
// netlist are one array (the design's port pins, then each cell's pins in
// order), and a net's pins are a slice of one index array. Names live in a
// pool of the definition, which its copies share with the connection
// lists.
#pragma once

#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "db/ModuleSource.h"
#include "db/NameIndex.h"
#include "db/NamePool.h"
#include "db/PodArray.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"

namespace cdm {

class Design;
class Elaboration;
class Port;

// A range over the objects of an array.
template <class T>
class Span {
 public:
  Span(T* first, size_t count) : first_(first), count_(count) {}
  T* begin() const { return first_; }
  T* end() const { return first_ + count_; }
  std::reverse_iterator<T*> rbegin() const { return std::reverse_iterator<T*>(end()); }
  std::reverse_iterator<T*> rend() const { return std::reverse_iterator<T*>(begin()); }
  size_t size() const { return count_; }
  bool empty() const { return count_ == 0; }
  T& operator[](size_t i) const { return first_[i]; }

 private:
  T* first_;
  size_t count_;
};

class Netlist {
 public:
  // An empty definition of `design`; filled by the reader (NetlistEditor).
  explicit Netlist(Design* design);
  // The copy of the linked `definition` for `instance` in `elaboration`:
  // cells, nets and pins of its own, in the arrays given (as many
  // default-made objects as the definition has), names and connection
  // lists shared with the definition.
  Netlist(const Netlist& definition, Cell* instance, Elaboration* elaboration, Cell* cells,
          Net* nets, Pin* pins);
  ~Netlist();
  Netlist(const Netlist&) = delete;
  Netlist& operator=(const Netlist&) = delete;

  Design* GetDesign() const { return design_; }
  // The hierarchical cell this netlist is the copy for; null for a
  // definition (the top of the elaborated design is its own definition).
  Cell* GetInstance() const { return instance_; }
  const Netlist* Definition() const { return definition_; }
  bool IsDefinition() const { return definition_ == this; }
  // "u_core/u_alu/" below the top, "" at the top and for a definition.
  std::string PathPrefix() const;

  // Cells in creation order.
  Span<Cell> Cells() const { return Span<Cell>(cells_, cell_count_); }
  uint32_t CellCount() const { return cell_count_; }
  uint32_t IndexOf(const Cell* cell) const { return static_cast<uint32_t>(cell - cells_); }
  Cell* FindCell(std::string_view name) const;
  std::string_view CellName(uint32_t index) const;

  // Nets in creation order: the named nets, then the tie nets of bare
  // constants. A name merged away by assign finds the surviving net.
  Span<Net> Nets() const { return Span<Net>(nets_, net_count_); }
  uint32_t NetCount() const { return net_count_; }
  uint32_t IndexOf(const Net* net) const { return static_cast<uint32_t>(net - nets_); }
  Net* FindNet(std::string_view name) const;
  std::string_view NetName(uint32_t index) const;
  // The tie net of a bare constant in a connection (value 0 or 1); null
  // when the module connects no such constant.
  Net* ConstNet(int value) const;
  bool IsTieNet(const Net* net) const { return IndexOf(net) >= NamedNetCount(); }
  size_t NamedNetCount() const { return Shared().named_net_count; }
  // The pool of the definition's cell and net names.
  const NamePool& Names() const { return Shared().names; }
  // The merged-away names of nets and the nets they stand for.
  const std::vector<std::pair<uint32_t, uint32_t>>& Aliases() const { return Shared().aliases; }

  // Pins: one per port of the design, in port order, then the cells' pins.
  uint32_t PinCount() const { return pin_count_; }
  Pin* PinAt(uint32_t index) const { return &pins_[index]; }
  uint32_t IndexOf(const Pin* pin) const { return static_cast<uint32_t>(pin - pins_); }
  Pin* PortPin(uint32_t index) const { return index < port_pin_count_ ? &pins_[index] : nullptr; }
  uint32_t PortPinCount() const { return port_pin_count_; }
  // The pins of the cell at `cell_index`: where they start, how many.
  uint32_t CellFirstPin(uint32_t cell_index) const { return cells_[cell_index].first_pin_; }
  uint32_t CellPinCount(uint32_t cell_index) const;
  NetPinRange NetPins(uint32_t net_index) const;

  // The copy below a hierarchical cell of this netlist; null if none.
  Netlist* ChildOf(const Cell* cell) const;
  bool IsLinked() const { return Shared().linked; }
  // The elaborated design this netlist is part of (its top or a copy);
  // null for a definition outside it.
  Elaboration* GetElaboration() const { return elaboration_; }

  // What the reader saw, kept so that link can run again (definitions).
  ModuleSource& Source() { return definition_->definition_data_->source; }
  const ModuleSource& Source() const { return Shared().source; }

  // Bytes held by the netlist (a copy: its object and its cells, nets and
  // pins; a definition: also what its copies share).
  size_t Bytes() const;

 private:
  friend class Cell;
  friend class Net;
  friend class NetlistEditor;

  // What only a definition holds; its copies read it through Shared().
  struct DefinitionData {
    ObjectArray<Cell> cells;
    ObjectArray<Net> nets;
    ObjectArray<Pin> pins;
    NamePool names;
    PodArray<uint32_t> net_pins;                         // pin indices, grouped by net
    std::vector<std::pair<uint32_t, uint32_t>> aliases;  // name offset, net index
    uint32_t named_net_count = 0;
    uint32_t tie_net[2] = {UINT32_MAX, UINT32_MAX};
    // Indices of the cells bound to a design, ascending: the copies made
    // for them below an elaborated netlist are consecutive, in this order.
    PodArray<uint32_t> hierarchical_cells;
    mutable std::unique_ptr<NameIndex> cell_index;
    mutable std::unique_ptr<NameIndex> net_index;
    mutable std::unique_ptr<std::string[]> cell_strings;
    mutable std::unique_ptr<std::string[]> net_strings;
    ModuleSource source;
    // References and stub ports of unresolved cells, by name.
    std::unordered_map<const std::string*, std::unique_ptr<UnresolvedReference>> unresolved;
    std::unordered_map<const std::string*, std::unique_ptr<Port>> stub_ports;
    bool linked = false;
  };

  const DefinitionData& Shared() const { return *definition_->definition_data_; }
  const std::string& CellNameString(uint32_t index) const;
  const std::string& NetNameString(uint32_t index) const;

  // A copy is small: what it shares stays with its definition, and its
  // objects live in arrays of the elaboration.
  Design* design_;
  Cell* instance_ = nullptr;
  const Netlist* definition_;
  Cell* cells_ = nullptr;
  Net* nets_ = nullptr;
  Pin* pins_ = nullptr;
  uint32_t cell_count_ = 0;
  uint32_t net_count_ = 0;
  uint32_t pin_count_ = 0;
  uint32_t port_pin_count_ = 0;
  // In the elaborated design, the elaboration's number of the copy below
  // this netlist's first hierarchical cell.
  uint32_t first_child_ = 0;
  Elaboration* elaboration_ = nullptr;
  std::unique_ptr<DefinitionData> definition_data_;  // null in a copy
};

}  // namespace cdm
