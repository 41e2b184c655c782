// A connection point: a pin of a cell, or the pin that stands for a port of
// a design inside that design's netlist.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "hostapi/cdm/Object.h"
#include "hostapi/cdm/Selectors.h"

namespace cdm {

class Cell;
class Net;
class Netlist;
class NetlistEditor;
class Port;

class Pin : public Object {
 public:
  Pin() : Object(nullptr) {}

  // The cell's full name, "/", and the port name; a port pin prints as the
  // hierarchical pin of the instance it stands in (or the bare port name at
  // the top).
  std::string GetFullName() const override;

  Net* GetNet() const;
  Cell* GetCell() const {  // null for a port pin
    return (owner_ & 1) ? nullptr : reinterpret_cast<Cell*>(owner_);
  }
  Port* GetPort() const { return port_; }
  Netlist* GetNetlist() const;  // the netlist the pin belongs to
  // Key of the pin in the timing graph, from 1: leaf pins and top port pins
  // have one, an inout pin two (this one drives, the next one loads);
  // hierarchical pins and pins outside the elaborated design have 0.
  uint32_t GetVertexId() const { return vertex_id_; }
  uint8_t GetDirection() const;  // of the port

  // Stands for a port of the current (top) design.
  bool IsTopPortPin() const { return (Flags() & kTopPort) != 0; }
  // Stands for a port of any design, inside that design's netlist.
  bool IsPortPin() const { return (Flags() & kPortPin) != 0; }
  // Drives its net at its own level of hierarchy.
  bool IsNetDriver() const { return (Flags() & kDriver) != 0; }
  // A pin of a hierarchical cell, or a port pin below the top.
  bool IsHierarchicalPin() const { return (Flags() & kHierarchical) != 0; }
  // A load pin: not a driver (inout pins are both).
  bool IsNetLoad() const { return (Flags() & kLoad) != 0; }

  // Pins one net away: drivers (fan-in) or loads (fan-out) of this pin's
  // net. A pin that only drives (loads) the net is in its own fan-in
  // (fan-out), so that a cone from an output pin starts there; an inout pin
  // leaves itself out. Mode 0 stays at the net's level, mode 1 goes through
  // hierarchy to leaf pins and top port pins.
  void GetFaninPins(std::vector<const Pin*>& pins, HierarchyMode mode) const;
  void GetFanoutPins(std::vector<const Pin*>& pins, HierarchyMode mode) const;
  void GetFaninPins(std::vector<Pin*>& pins, HierarchyMode mode) const;
  void GetFanoutPins(std::vector<Pin*>& pins, HierarchyMode mode) const;

  // The (flat) driver of this pin's net; the pin itself when it drives.
  Pin* GetCurrentDriverPin() const;
  // For an input pin of a combinational library cell: the first output pin
  // it reaches through the cell. Null at a sequential cell or any other end.
  // `through_sequential` lets the walk pass sequential cells.
  Pin* GetInputOutputPin(bool through_sequential) const;
  // For an output pin of a combinational library cell: the input pins that
  // reach it. Empty at a sequential cell or any other end.
  std::vector<Pin*> GetOutputInputPins(bool through_sequential) const;

  // The library pin capacitance (SI farads); 0 for pins without one.
  float Capacitance(const RiseFall* edge, const MinMax* minmax) const;
  // The net whose wire figures belong to this pin: its own net.
  Net* GetBackwardConn() const { return GetNet(); }
  // Tied to logic 0 or 1.
  bool IsConst() const;
  // 0 or 1 for a pin on a constant net, -1 otherwise.
  int GetConstValue() const;

  enum Flag : uint8_t {
    kTopPort = 1,
    kPortPin = 2,
    kDriver = 4,
    kLoad = 8,
    kHierarchical = 16,
  };
  uint8_t Flags() const { return static_cast<uint8_t>(net_flags_ >> kNetBits); }

 private:
  friend class Netlist;
  friend class NetlistEditor;

  static constexpr uint32_t kNetBits = 27;
  static constexpr uint32_t kNetMask = (1u << kNetBits) - 1;
  // Index of the net in the netlist, plus one; 0 when unconnected.
  uint32_t NetSlot() const { return net_flags_ & kNetMask; }

  uintptr_t owner_ = 0;  // the Cell, or for a port pin the Netlist with bit 0 set
  Port* port_ = nullptr;
  uint32_t net_flags_ = 0;  // net slot in the low bits, flags in the top five
  uint32_t vertex_id_ = 0;
};

}  // namespace cdm
