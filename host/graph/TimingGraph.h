// The timing graph the timer works on: the reports' face (vertices, levels,
// slews) and the edges behind it, kept by source and by sink in compact
// arrays so that a million-instance design walks fast.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "graph/Edge.h"
#include "hostapi/sta/Graph.h"

namespace sta {

class TimingGraph : public Graph {
 public:
  // Building: size the vertex table, name each vertex, add edges in any
  // order, then Finish() to index them.
  void ResetVertices(uint32_t max_vertex_id);
  void SetVertex(uint32_t id, cdm::Pin* pin, bool driver, bool load);
  void AddEdge(const Edge& edge) { edges_.push_back(edge); }
  void Finish();

  Vertex* MutableVertex(uint32_t id) { return &vertices_[id]; }
  bool HasVertex(uint32_t id) const { return id < vertices_.size() && vertices_[id].pin(); }
  uint32_t TableSize() const { return static_cast<uint32_t>(vertices_.size()); }

  const std::vector<Edge>& Edges() const { return edges_; }
  Edge& MutableEdge(uint32_t index) { return edges_[index]; }
  // Edges leaving a vertex are the index range [OutBegin(v), OutEnd(v)).
  uint32_t OutBegin(uint32_t v) const { return out_begin_[v]; }
  uint32_t OutEnd(uint32_t v) const { return out_begin_[v + 1]; }
  // Edges entering a vertex: InEdge(i) for i in [InBegin(v), InEnd(v)).
  uint32_t InBegin(uint32_t v) const { return in_begin_[v]; }
  uint32_t InEnd(uint32_t v) const { return in_begin_[v + 1]; }
  uint32_t InEdge(uint32_t i) const { return in_edges_[i]; }

  void SetLevel(uint32_t id, uint32_t level) { vertices_[id].level_ = level; }
  void SetSlew(uint32_t id, int rf, int mm, float value) { slews_[SlewSlot(id, rf, mm)] = value; }
  float Slew(uint32_t id, int rf, int mm) const { return slews_[SlewSlot(id, rf, mm)]; }
  void ClearSlews() { slews_.assign(vertices_.size() * 4, 0.0f); }

  // Vertex identifiers ordered by level, then by identifier: the order in
  // which arrivals and delays can be computed.
  const std::vector<uint32_t>& LevelOrder() const { return level_order_; }
  void SetLevelOrder(std::vector<uint32_t> order) { level_order_ = std::move(order); }
  uint32_t MaxLevel() const { return max_level_; }
  void SetMaxLevel(uint32_t level) { max_level_ = level; }

  // The vertex's pin name, for messages.
  std::string VertexName(uint32_t id) const;

 private:
  std::vector<Edge> edges_;
  std::vector<uint32_t> out_begin_;
  std::vector<uint32_t> in_begin_;
  std::vector<uint32_t> in_edges_;
  std::vector<uint32_t> level_order_;
  uint32_t max_level_ = 0;
};

}  // namespace sta
