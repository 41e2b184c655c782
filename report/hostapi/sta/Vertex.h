// A vertex of the timing graph: one per leaf pin and top port pin (an inout
// pin has two, one driving its net and one loading it).
#pragma once

#include <cstdint>

namespace cdm {
class Pin;
}

namespace sta {

class Vertex {
 public:
  Vertex() : level_(0), flags_(0) {}

  // Null for an identifier that stands for no vertex (a hierarchical pin).
  cdm::Pin* pin() const { return pin_; }
  // Longest count of timing edges from a root (a pin with no fan-in, such as
  // a top input); combinational loops are cut before counting.
  uint32_t level() const { return level_; }
  // Drives its net (an output, a top input, or the driving half of an inout).
  bool isDriver() const { return (flags_ & kDriver) != 0; }
  // The loading half of an inout pin, or any pin that only loads its net.
  bool isLoad() const { return (flags_ & kLoad) != 0; }

  static constexpr uint32_t kMaxLevel = (1u << 24) - 1;

 private:
  friend class TimingGraph;
  enum Flag : uint8_t { kDriver = 1, kLoad = 2 };

  cdm::Pin* pin_ = nullptr;
  uint32_t level_ : 24;
  uint32_t flags_ : 8;
};

}  // namespace sta
