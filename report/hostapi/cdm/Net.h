// A net of one netlist (one level of hierarchy). Through hierarchical pins
// it continues in the netlists above and below: together they make one
// flat net of the elaborated design.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "hostapi/cdm/Object.h"
#include "hostapi/cdm/Selectors.h"

namespace cdm {

class Netlist;
class NetlistEditor;
class OperatingConditions;
class Pin;

// The pins of a net at its level, as a range of Pin pointers.
class NetPinRange {
 public:
  class iterator {
   public:
    iterator(Pin* base, const uint32_t* at) : base_(base), at_(at) {}
    Pin* operator*() const;
    iterator& operator++() {
      ++at_;
      return *this;
    }
    bool operator!=(const iterator& other) const { return at_ != other.at_; }
    bool operator==(const iterator& other) const { return at_ == other.at_; }

   private:
    Pin* base_;
    const uint32_t* at_;
  };
  NetPinRange(Pin* base, const uint32_t* first, const uint32_t* last)
      : base_(base), first_(first), last_(last) {}
  iterator begin() const { return iterator(base_, first_); }
  iterator end() const { return iterator(base_, last_); }
  size_t size() const { return static_cast<size_t>(last_ - first_); }
  bool empty() const { return first_ == last_; }
  Pin* operator[](size_t i) const;

 private:
  Pin* base_;
  const uint32_t* first_;
  const uint32_t* last_;
};

class Net : public Object {
 public:
  Net() = default;

  // Path of the enclosing instance, "/", and the local name.
  std::string GetFullName() const override;
  Netlist* GetNetlist() const { return netlist_; }

  // Pins on this net at its own level, in creation order (the design's
  // port pins, then each cell's pins).
  NetPinRange Pins() const;

  // The flat driver: a leaf output pin or a top input port pin of the flat
  // net; null for a constant or undriven net.
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

  // Wire capacitance (F) and resistance (ohm) of the net, estimated by the
  // flat fan-out from the wire-load model and mode in force (see
  // docs/constraints.md); 0 and 0 without a model. `conditions` scales
  // nothing yet; may be null.
  void NetCapAndRes(const OperatingConditions* conditions, float& wire_cap, float& resistance,
                    const MinMax* minmax, HierarchyMode mode) const;

  // The identifier of the flat net this net belongs to in the elaborated
  // current design, from 1; 0 for a net of a definition outside it.
  uint32_t FlatNetId() const { return flat_id_; }
  // 0 or 1 when this net itself is tied, -1 else.
  int LocalConstValue() const { return static_cast<int>(name_const_ >> 30) - 1; }

 private:
  friend class Netlist;
  friend class NetlistEditor;

  static constexpr uint32_t kNameMask = (1u << 30) - 1;
  uint32_t Index() const;
  const std::string& MaterializeName() const override;

  Netlist* netlist_ = nullptr;
  uint32_t name_const_ = 0;     // name offset in the pool; tie value + 1 in the top bits
  uint32_t first_pin_ref_ = 0;  // in the netlist's net-to-pin array
  uint32_t flat_id_ = 0;
};

}  // namespace cdm
