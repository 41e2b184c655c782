#include "graph/Levelizer.h"

#include <algorithm>
#include <utility>

#include "graph/TimingGraph.h"
#include "hostapi/sta/Vertex.h"

namespace sta {
namespace {

bool Follows(const Edge& edge) {
  return Propagates(edge.role) && !edge.BreaksLoop();
}

std::vector<CutLoop> CutLoops(TimingGraph& graph) {
  std::vector<CutLoop> loops;
  const uint32_t count = graph.TableSize();
  enum : uint8_t { kNew, kOnPath, kDone };
  std::vector<uint8_t> state(count, kNew);
  std::vector<std::pair<uint32_t, uint32_t>> path;  // vertex, next edge to try
  for (uint32_t root = 1; root < count; ++root) {
    if (state[root] != kNew || !graph.HasVertex(root)) continue;
    path.emplace_back(root, graph.OutBegin(root));
    state[root] = kOnPath;
    while (!path.empty()) {
      auto& [vertex, next] = path.back();
      if (next == graph.OutEnd(vertex)) {
        state[vertex] = kDone;
        path.pop_back();
        continue;
      }
      const uint32_t edge_index = next++;
      const Edge& edge = graph.Edges()[edge_index];
      if (!Follows(edge)) continue;
      if (state[edge.to] == kNew) {
        state[edge.to] = kOnPath;
        path.emplace_back(edge.to, graph.OutBegin(edge.to));
      } else if (state[edge.to] == kOnPath) {
        graph.MutableEdge(edge_index).flags |= Edge::kLoopBreak;
        CutLoop loop{edge_index, {}};
        size_t start = path.size();
        while (start > 0 && path[start - 1].first != edge.to) --start;
        for (size_t i = start - 1; i < path.size(); ++i) loop.vertices.push_back(path[i].first);
        loops.push_back(std::move(loop));
      }
    }
  }
  return loops;
}

}  // namespace

std::vector<CutLoop> LevelizeGraph(TimingGraph& graph) {
  std::vector<CutLoop> loops = CutLoops(graph);
  const uint32_t count = graph.TableSize();
  std::vector<uint32_t> pending(count, 0);
  for (const Edge& edge : graph.Edges())
    if (Follows(edge)) ++pending[edge.to];
  std::vector<uint32_t> level(count, 0);
  std::vector<uint32_t> ready;
  for (uint32_t v = 1; v < count; ++v)
    if (graph.HasVertex(v) && pending[v] == 0) ready.push_back(v);
  uint32_t max_level = 0;
  for (size_t next = 0; next < ready.size(); ++next) {
    const uint32_t v = ready[next];
    for (uint32_t e = graph.OutBegin(v); e < graph.OutEnd(v); ++e) {
      const Edge& edge = graph.Edges()[e];
      if (!Follows(edge)) continue;
      level[edge.to] = std::max(level[edge.to], std::min(level[v] + 1, Vertex::kMaxLevel));
      if (--pending[edge.to] == 0) ready.push_back(edge.to);
    }
  }
  // Bucket the vertices by level, each bucket in identifier order.
  for (uint32_t v : ready) max_level = std::max(max_level, level[v]);
  std::vector<uint32_t> first(static_cast<size_t>(max_level) + 2, 0);
  for (uint32_t v : ready) ++first[level[v] + 1];
  for (size_t l = 0; l + 1 < first.size(); ++l) first[l + 1] += first[l];
  std::vector<uint32_t> order(ready.size());
  for (uint32_t v = 1; v < count; ++v) {
    if (!graph.HasVertex(v)) continue;
    graph.SetLevel(v, level[v]);
    order[first[level[v]]++] = v;
  }
  graph.SetMaxLevel(max_level);
  graph.SetLevelOrder(std::move(order));
  return loops;
}

}  // namespace sta
