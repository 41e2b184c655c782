// Wire figures read from SPEF, per flat net of the elaborated current
// design. They hold until the database changes (a read, link or
// current_design renumbers the flat nets); the wire-load estimate covers
// every net without them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>

namespace cdm {
class Net;
}

namespace parasitics {

struct NetFigures {
  float capacitance = 0.0f;  // F
  float resistance = 0.0f;   // ohm
};

class NetAnnotations {
 public:
  static NetAnnotations& Get();

  // Sets the figures of flat nets of the current elaboration (others keep
  // theirs); moves the generation.
  void Annotate(const std::unordered_map<uint32_t, NetFigures>& figures);
  // The figures of `net`'s flat net; false when it has none.
  bool Find(const cdm::Net* net, NetFigures& figures);
  size_t Count();
  // Moves on every annotation and when a change of the database drops them.
  uint64_t Generation();

 private:
  void DropIfStale();

  std::unordered_map<uint32_t, NetFigures> figures_;
  uint64_t database_generation_ = 0;
  uint64_t generation_ = 0;
};

// For the wire-load estimator: a net's annotated figures.
bool AnnotatedNetWire(const cdm::Net* net, float& wire_cap, float& resistance);

}  // namespace parasitics
