#include "graph/TimingGraph.h"

#include <algorithm>

#include "hostapi/cdm/Pin.h"

namespace sta {

void TimingGraph::ResetVertices(uint32_t max_vertex_id) {
  vertices_.assign(static_cast<size_t>(max_vertex_id) + 1, Vertex());
  slews_.assign(vertices_.size() * 4, 0.0f);
  edges_.clear();
  out_begin_.clear();
  in_begin_.clear();
  in_edges_.clear();
  level_order_.clear();
  max_level_ = 0;
}

void TimingGraph::SetVertex(uint32_t id, cdm::Pin* pin, bool driver, bool load) {
  Vertex& vertex = vertices_[id];
  vertex.pin_ = pin;
  vertex.flags_ = (driver ? Vertex::kDriver : 0) | (load ? Vertex::kLoad : 0);
}

void TimingGraph::Finish() {
  const size_t count = vertices_.size();
  // Edges by source, keeping the order they were added in within a source.
  std::stable_sort(edges_.begin(), edges_.end(),
                   [](const Edge& a, const Edge& b) { return a.from < b.from; });
  out_begin_.assign(count + 1, 0);
  for (const Edge& edge : edges_) ++out_begin_[edge.from + 1];
  for (size_t v = 0; v < count; ++v) out_begin_[v + 1] += out_begin_[v];

  in_begin_.assign(count + 1, 0);
  for (const Edge& edge : edges_) ++in_begin_[edge.to + 1];
  for (size_t v = 0; v < count; ++v) in_begin_[v + 1] += in_begin_[v];
  in_edges_.assign(edges_.size(), 0);
  std::vector<uint32_t> next(in_begin_.begin(), in_begin_.end() - 1);
  for (uint32_t e = 0; e < edges_.size(); ++e) in_edges_[next[edges_[e].to]++] = e;
}

std::string TimingGraph::VertexName(uint32_t id) const {
  const cdm::Pin* pin = id < vertices_.size() ? vertices_[id].pin() : nullptr;
  return pin ? pin->GetFullName() : "?";
}

}  // namespace sta
