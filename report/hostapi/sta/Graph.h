// The timing graph as reports read it: a vertex per pin's vertex
// identifier, its level and its slews. The timer owns it
// (sta::Sta::ensureGraph) and builds the edges and figures behind it.
#pragma once

#include <cstdint>
#include <vector>

#include "hostapi/cdm/Selectors.h"
#include "hostapi/sta/Vertex.h"

namespace sta {

class Graph {
 public:
  virtual ~Graph() = default;

  // The vertex of a pin's vertex identifier (cdm::Pin::GetVertexId); null
  // for 0, for an identifier past the end and for one with no vertex.
  const Vertex* vertex(uint32_t vertex_id) const {
    return vertex_id < vertices_.size() && vertices_[vertex_id].pin() ? &vertices_[vertex_id]
                                                                      : nullptr;
  }
  // Identifiers run from 1 to vertexCount().
  uint32_t vertexCount() const {
    return vertices_.empty() ? 0 : static_cast<uint32_t>(vertices_.size() - 1);
  }
  uint32_t vertexId(const Vertex* vertex) const {
    return static_cast<uint32_t>(vertex - vertices_.data());
  }

  // The transition time (seconds) at the vertex for an edge and a min/max
  // index (cdm::MinMax::index); 0 before timing has been updated.
  float slew(const Vertex* vertex, const cdm::RiseFall* rf, int minmax_index) const {
    const size_t slot = SlewSlot(vertexId(vertex), rf->index(), minmax_index);
    return slot < slews_.size() ? slews_[slot] : 0.0f;
  }

 protected:
  Graph() = default;
  static size_t SlewSlot(uint32_t id, int rf, int mm) {
    return static_cast<size_t>(id) * 4 + static_cast<size_t>(rf * 2 + mm);
  }

  std::vector<Vertex> vertices_;  // by identifier; entry 0 stands for none
  std::vector<float> slews_;      // four per vertex: rise min, rise max, fall min, fall max
};

}  // namespace sta
