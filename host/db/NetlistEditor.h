// The one way to change netlist objects: the reader fills definitions,
// link binds their cells and makes their pins, elaboration copies them and
// numbers flat nets and vertices. Reports only read.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "db/ModuleSource.h"
#include "db/NamePool.h"
#include "db/PodArray.h"
#include "hostapi/cdm/Object.h"

namespace cdm {

class Cell;
class Design;
class DesignNetBus;
class DesignPortBus;
class Elaboration;
class Net;
class Netlist;
class Pin;
class Port;
class Reference;
class Root;
class UnresolvedReference;

// What the reader gathers for one module before it becomes a definition.
struct ModuleDraft {
  NamePool names;                                               // cell and net names
  PodArray<uint32_t> cell_names;                                // offsets in `names`
  PodArray<const std::string*> cell_refs;                       // interned reference names
  std::vector<std::pair<uint32_t, Attribute>> cell_attributes;  // cell index, attribute
  PodArray<uint32_t> net_names;                                 // offsets in `names`
  PodArray<int8_t> net_ties;                                    // -1, 0 or 1 per net
  std::vector<std::pair<uint32_t, uint32_t>> aliases;           // name offset, net index
  ModuleSource source;
};

class NetlistEditor {
 public:
  // Pin flags for a port of direction `direction`, for the pin inside the
  // design (`inside`) or for the cell pin outside it.
  static uint8_t DirectionFlags(uint8_t direction, bool inside);

  // Reader.
  static Port* AddPort(Design* design, std::unique_ptr<Port> port, DesignPortBus* bus);
  static DesignPortBus* AddPortBus(Design* design, std::unique_ptr<DesignPortBus> bus);
  static DesignNetBus* AddNetBus(Design* design, std::unique_ptr<DesignNetBus> bus);
  // Turns the draft into the definition's cells, nets and names. False with
  // `error` when the module is beyond the database's limits.
  static bool Fill(Root* root, Netlist* netlist, ModuleDraft&& draft, std::string& error);

  // Link.
  static UnresolvedReference* Unresolved(Netlist* netlist, const std::string* name);
  static Port* StubPort(Root* root, Netlist* netlist, const std::string& name);
  // Binds cell `index` to `ref` (a Design, a LibCell or an
  // UnresolvedReference) with its pins starting at `first_pin`.
  static void BindCell(Netlist* netlist, uint32_t index, Reference* ref, int kind,
                       uint32_t first_pin);
  static void MakePins(Netlist* netlist, uint32_t count);
  static void InitPin(Pin* pin, Port* port, Cell* cell, Netlist* netlist, uint8_t flags);
  // Connects `pin` to net `net_index` unless it is connected already.
  static void Connect(Pin* pin, uint32_t net_index);
  // Groups the pins by net once all are connected, and marks the netlist
  // linked.
  static void FinishLink(Netlist* netlist);

  // Elaboration.
  static void AttachTop(Netlist* top, Elaboration* elaboration);
  static void DetachTop(Netlist* top);
  // Keeps, in the definition, which of its cells are bound to designs.
  static void IndexHierarchicalCells(Netlist* definition);
  // Marks the port pins of a new copy as hierarchical pins.
  static void InitInstance(Netlist* copy);
  // The copies below `netlist`'s hierarchical cells are the elaboration's
  // copies from `copy_number` on, in cell order.
  static void SetFirstChild(Netlist* netlist, uint32_t copy_number);
  static void SetVertexId(Pin* pin, uint32_t id);
  static void SetFlatNetId(Net* net, uint32_t id);
  static void SetFlags(Pin* pin, uint8_t flags);
};

}  // namespace cdm
