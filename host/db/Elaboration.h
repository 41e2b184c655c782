// The design as it is elaborated below the current design: a copy of each
// module's definition per instance, the flat nets that connect them, and
// the timing vertices (one per leaf pin and top port pin, two for inout).
// Made at link and when the current design moves; its objects stay the
// same until then.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "db/Netlist.h"
#include "db/PodArray.h"

namespace cdm {

class Design;
class Netlist;
class Pin;

// One flat net: its driver vertices, then its load vertices, each in
// creation order, as a slice of the elaboration's vertex list.
struct FlatNetRecord {
  uint32_t first = 0;
  uint32_t driver_count = 0;
  uint32_t load_count = 0;
  int32_t const_value = -1;
};

class Elaboration {
 public:
  explicit Elaboration(Design* top);
  ~Elaboration();
  Elaboration(const Elaboration&) = delete;
  Elaboration& operator=(const Elaboration&) = delete;

  // Builds everything below `top`, whose definition (and those below it)
  // must be linked. False with `error`, and nothing built, when the
  // elaborated design would be too large to number.
  bool Build(std::string& error);
  // Returns the top's definition to a plain definition: its pins lose their
  // vertices and top-port flags, its nets their flat ids.
  void Release();

  Design* Top() const { return top_; }
  uint64_t Generation() const { return generation_; }
  void SetGeneration(uint64_t generation) { generation_ = generation; }

  // Flat nets by id, from 1.
  uint32_t FlatNetCount() const { return static_cast<uint32_t>(flat_nets_.size() - 1); }
  const FlatNetRecord& FlatNet(uint32_t id) const { return flat_nets_[id]; }
  const uint32_t* FlatNetDrivers(uint32_t id) const {
    return &flat_vertices_[flat_nets_[id].first];
  }
  const uint32_t* FlatNetLoads(uint32_t id) const {
    const FlatNetRecord& net = flat_nets_[id];
    return &flat_vertices_[net.first + net.driver_count];
  }

  // Vertices by id, from 1; an inout pin stands at two ids.
  uint32_t VertexCount() const { return static_cast<uint32_t>(vertices_.size() - 1); }
  Pin* VertexPin(uint32_t id) const { return id < vertices_.size() ? vertices_[id] : nullptr; }
  // Whether the vertex drives its net (else it loads it).
  bool VertexDrives(uint32_t id) const;

  // The copies made for the hierarchical cells, in elaboration order
  // (depth first, each copy right after its cell).
  Span<Netlist* const> Instances() const {
    return netlists_.empty() ? Span<Netlist* const>(nullptr, 0)
                             : Span<Netlist* const>(netlists_.data() + 1, netlists_.size() - 1);
  }
  // The copy of the given number (see NetlistEditor::SetFirstChild).
  Netlist* Copy(uint32_t number) const { return &copies_[number]; }
  size_t Bytes() const;

 private:
  struct Totals;
  bool Plan(Totals& whole, std::string& error);
  bool FitsInMemory(const Totals& whole, std::string& error) const;
  void MakeChildren(Netlist* netlist);
  void NumberPins(Netlist* netlist, uint32_t first, uint32_t count);
  void BuildFlatNets();
  // Number of a net among all nets of the elaborated design.
  uint32_t GlobalNetIndex(const Net* net) const;

  Design* top_;
  uint64_t generation_ = 0;
  // The copies and their objects, each in one array made to size: the
  // copies below one netlist are consecutive (see SetFirstChild).
  ObjectArray<Netlist> copies_;
  ObjectArray<Cell> cells_;
  ObjectArray<Net> nets_;
  ObjectArray<Pin> pins_;
  std::vector<Netlist*> netlists_;  // the top, then the copies in depth-first order
  PodArray<FlatNetRecord> flat_nets_;
  PodArray<uint32_t> flat_vertices_;
  PodArray<Pin*> vertices_;
};

}  // namespace cdm
