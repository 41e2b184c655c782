// A net of one netlist (one level of hierarchy). Through hierarchical pins
// it continues in the netlists above and below: the flat net.
#pragma once

#include <string>
#include <vector>

#include "hostapi/cdm/Object.h"
#include "hostapi/cdm/Selectors.h"

namespace cdm {

class Netlist;
class OperatingConditions;
class Pin;

class Net : public Object {
 public:
  Net(const std::string* name, Netlist* netlist) : Object(name), netlist_(netlist) {}

  // Path of the enclosing instance, "/", and the local name.
  std::string GetFullName() const override;
  Netlist* GetNetlist() const { return netlist_; }

  // Pins on this net at its own level, in order of connection.
  const std::vector<Pin*>& Pins() const { return pins_; }

  // The flat driver: a leaf output pin or a top input port pin, found
  // through hierarchy; null for a constant or undriven net.
  Pin* GetDriverPin() const;
  // Where a walk from this net starts: the flat driver, may be null.
  Pin* GetCurrentDriverPin() const { return GetDriverPin(); }
  // 0 or 1 for a net tied to that value (also through hierarchy), -1 else.
  int GetConstValue() const;

  // Drivers and loads; mode 0 at this level (hierarchical pins and port
  // pins included), mode 1 flat (leaf pins and top port pins).
  void GetFaninPins(std::vector<const Pin*>& pins, HierarchyMode mode) const;
  void GetFanoutPins(std::vector<const Pin*>& pins, HierarchyMode mode) const;
  void GetFaninPins(std::vector<Pin*>& pins, HierarchyMode mode) const;
  void GetFanoutPins(std::vector<Pin*>& pins, HierarchyMode mode) const;

  // Wire capacitance (F) and resistance (ohm) of the net, estimated from
  // the default library's wire load model by the flat fan-out; 0 and 0 when
  // the library has none. `conditions` scales nothing yet; may be null.
  void NetCapAndRes(const OperatingConditions* conditions, float& wire_cap, float& resistance,
                    const MinMax* minmax, HierarchyMode mode) const;

  // Building.
  void AddPin(Pin* pin) { pins_.push_back(pin); }
  void ClearPins() { pins_.clear(); }
  void SetConstValue(int value) { const_value_ = static_cast<signed char>(value); }
  int LocalConstValue() const { return const_value_; }
  void Rename(const std::string* name) { SetName(name); }

 private:
  Netlist* netlist_;
  std::vector<Pin*> pins_;
  signed char const_value_ = -1;
};

}  // namespace cdm
