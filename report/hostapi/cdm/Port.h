// Ports: the connection points of a design (and, through LibPort, of a
// library cell), and the bus objects built from vector declarations.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>

#include "hostapi/cdm/Object.h"

namespace cdm {

class Design;
class DesignPortBus;
class NetlistEditor;

// Directions as the byte `direction` holds them.
enum PortDirection : uint8_t {
  kDirInput = 0,
  kDirOutput = 1,
  kDirInout = 2,
  kDirInternal = 3,  // library-internal pins; also a pin of an unresolved cell
};

// A port. Design ports are Port objects themselves; library ports derive
// from Port so that a pin's port can be down-cast to a LibPort.
class Port : public Object {
 public:
  Port(const std::string* name, uint8_t port_direction) : Object(name), direction(port_direction) {}

  uint8_t GetDirection() const { return direction; }
  bool IsInput() const { return direction == kDirInput || direction == kDirInout; }
  bool IsOutput() const { return direction == kDirOutput || direction == kDirInout; }

  // Design ports only: the owning design (null for a library port), the
  // position in the design's port list, and the bus the port is a bit of.
  Design* GetDesign() const { return design_; }
  uint32_t GetIndex() const { return index_; }
  DesignPortBus* GetBus() const { return bus_; }

  uint8_t direction;  // 0 input, 1 output, 2 inout, 3 internal

 private:
  friend class Design;
  friend class NetlistEditor;
  void SetDesign(Design* design, uint32_t index) {
    design_ = design;
    index_ = index;
  }
  void SetBus(DesignPortBus* bus) { bus_ = bus; }

  Design* design_ = nullptr;
  DesignPortBus* bus_ = nullptr;
  uint32_t index_ = 0;
};

// A bus of ports, e.g. `input [31:0] req_msg`: From 31, To 0.
class DesignPortBus : public Object {
 public:
  DesignPortBus(const std::string* name, uint8_t bus_direction, int from, int to)
      : Object(name), direction(bus_direction), from_(from), to_(to) {}
  int From() const { return from_; }
  int To() const { return to_; }
  virtual int Width() const { return std::abs(from_ - to_) + 1; }
  uint8_t GetDirection() const { return direction; }

  uint8_t direction;  // as Port::direction

 private:
  int from_;
  int to_;
};

// A bus of nets, from a vector `wire` declaration (or a vector port).
class DesignNetBus : public Object {
 public:
  DesignNetBus(const std::string* name, int from, int to) : Object(name), from_(from), to_(to) {}
  int From() const { return from_; }
  int To() const { return to_; }
  int Width() const { return std::abs(from_ - to_) + 1; }

 private:
  int from_;
  int to_;
};

}  // namespace cdm
