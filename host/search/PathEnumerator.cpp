#include "search/PathEnumerator.h"

#include <queue>

#include "graph/TimingGraph.h"
#include "search/ArrivalSearch.h"
#include "search/PathEnds.h"
#include "search/Sensitization.h"

namespace sta {
namespace {

struct Node {
  enum class Kind : uint8_t { kPartial, kRegister, kSeed };
  Kind kind = Kind::kPartial;
  uint8_t rf = 0;
  uint32_t vertex = 0;
  uint32_t tag = 0;
  float suffix = 0.0f;                 // delay from this vertex to the end
  float key = 0.0f;                    // the arrival at the end of the best completion
  int parent = -1;                     // the node nearer the end
  uint32_t edge = PathStage::kNoEdge;  // from this vertex to the parent's
  float edge_delay = 0.0f;
  float head = 0.0f;  // the arrival at this vertex (complete nodes: at the start)
  const ArrivalSeed* seed = nullptr;
};

// Pops beyond which a search gives up (a guard against huge reconvergence).
constexpr size_t kMaxPops = 2000000;

// How much worse than the best way into a vertex a way through one of its
// fan-in edges is. The arrival search folded exactly these sums, so the edge
// the arrival came by deviates by exactly 0: keys made from deviations stay
// equal along the worst path and the search follows it straight down, where
// keys summed from both ends drift apart in the last bits and leave a deep
// path among millions of near-ties.
float Deviation(float best, float via, bool setup) {
  const float dev = setup ? best - via : via - best;
  return dev > 0.0f ? dev : 0.0f;
}

TimingPath Build(const std::vector<Node>& nodes, int complete, const PathEnd& end) {
  TimingPath path;
  path.end = &end;
  const Node& start = nodes[complete];
  int at = complete;
  if (start.kind == Node::Kind::kRegister) {
    path.from_register = true;
    path.clock_arrival = start.head;
    PathStage stage;
    stage.vertex = start.vertex;
    stage.tag = start.tag;
    stage.rf = start.rf;
    stage.arrival = start.head;
    path.stages.push_back(stage);
  } else {
    path.seed = start.seed;
    at = start.parent;  // the seed's vertex is its parent's
    PathStage stage;
    stage.vertex = nodes[at].vertex;
    stage.tag = nodes[at].tag;
    stage.rf = nodes[at].rf;
    stage.arrival = start.head;
    path.stages.push_back(stage);
  }
  // Walk toward the end: each node's edge leads to its parent.
  while (nodes[at].parent >= 0) {
    const Node& node = nodes[at];
    const Node& next = nodes[node.parent];
    PathStage stage;
    stage.vertex = next.vertex;
    stage.tag = next.tag;
    stage.rf = next.rf;
    stage.edge = node.edge;
    stage.delay = node.edge_delay;
    stage.arrival = path.stages.back().arrival + node.edge_delay;
    path.stages.push_back(stage);
    at = node.parent;
  }
  if (end.launch_shift != 0.0f) {
    path.clock_arrival += end.launch_shift;
    for (PathStage& stage : path.stages) stage.arrival += end.launch_shift;
  }
  path.arrival = path.stages.back().arrival;
  path.slack = end.setup ? end.required - path.arrival : path.arrival - end.required;
  return path;
}

}  // namespace

std::vector<TimingPath> EnumeratePaths(ArrivalSearch& search, const PathEnd& end, int count) {
  std::vector<TimingPath> paths;
  if (count <= 0) return paths;
  const TimingGraph& graph = *search.Context().graph;
  const int mm = end.setup ? 1 : 0;
  std::vector<Node> nodes;
  // Worst first: the latest arrival for setup, the earliest for hold.
  // Among equal keys the node made last comes first: the search goes deep.
  auto worse = [&](int a, int b) {
    if (nodes[a].key != nodes[b].key)
      return end.setup ? nodes[a].key < nodes[b].key : nodes[a].key > nodes[b].key;
    return a < b;
  };
  std::priority_queue<int, std::vector<int>, decltype(worse)> queue(worse);
  Node first;
  first.vertex = end.vertex;
  first.tag = end.tag;
  first.rf = end.rf;
  first.key = end.arrival - end.launch_shift;
  first.head = first.key;
  nodes.push_back(first);
  queue.push(0);
  size_t pops = 0;
  while (!queue.empty() && static_cast<int>(paths.size()) < count && pops++ < kMaxPops) {
    const int index = queue.top();
    queue.pop();
    const Node node = nodes[index];
    if (node.kind != Node::Kind::kPartial) {
      paths.push_back(Build(nodes, index, end));
      continue;
    }
    // A child's key: its parent's, less how much worse its way in is.
    auto Step = [&](const Node& parent, float deviation) {
      return end.setup ? parent.key - deviation : parent.key + deviation;
    };
    auto push = [&](Node child) {
      nodes.push_back(child);
      queue.push(static_cast<int>(nodes.size() - 1));
    };
    if (const std::vector<ArrivalSeed>* seeds = search.SeedsAt(node.vertex)) {
      for (const ArrivalSeed& seed : *seeds) {
        if (seed.arrival.tag != node.tag || !seed.arrival.Has(node.rf, mm)) continue;
        Node child;
        child.kind = Node::Kind::kSeed;
        child.parent = index;
        child.vertex = node.vertex;
        child.head = seed.arrival.Get(node.rf, mm);
        child.key = Step(node, Deviation(node.head, child.head, end.setup));
        child.seed = &seed;
        push(child);
      }
    }
    const uint32_t w = node.vertex;
    const uint32_t fanin_end = search.IsClockSource(w) ? graph.InBegin(w) : graph.InEnd(w);
    for (uint32_t i = graph.InBegin(w); i < fanin_end; ++i) {
      const uint32_t e = graph.InEdge(i);
      const Edge& edge = graph.Edges()[e];
      if (!Propagates(edge.role) || edge.BreaksLoop() ||
          search.Context().constants->EdgeDisabled(e))
        continue;
      const std::vector<Arrival> from(search.Begin(edge.from), search.End(edge.from));
      for (const Arrival& entry : from) {
        for (int from_rf = 0; from_rf < 2; ++from_rf) {
          if (!edge.HasArc(from_rf, node.rf) || !entry.Has(from_rf, mm)) continue;
          uint32_t to_tag = 0;
          if (!search.Propagate(e, entry.tag, from_rf, node.rf, to_tag) || to_tag != node.tag)
            continue;
          const float delay = search.ArcDelay(e, entry.tag, from_rf, node.rf, mm);
          Node child;
          child.kind =
              edge.role == EdgeRole::kClockToOutput ? Node::Kind::kRegister : Node::Kind::kPartial;
          child.parent = index;
          child.vertex = edge.from;
          child.tag = entry.tag;
          child.rf = static_cast<uint8_t>(from_rf);
          child.edge = e;
          child.edge_delay = delay;
          child.suffix = node.suffix + delay;
          child.head = child.kind == Node::Kind::kRegister
                           ? search.ClockPinArrival(entry, from_rf, mm)
                           : entry.Get(from_rf, mm);
          child.key = Step(node, Deviation(node.head, child.head + delay, end.setup));
          push(child);
        }
      }
    }
  }
  return paths;
}

}  // namespace sta
