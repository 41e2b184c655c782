#include "search/ClockNetwork.h"

#include <algorithm>

#include "graph/TimingGraph.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/sta/Clock.h"
#include "search/Sensitization.h"

namespace sta {

uint32_t ClockNetwork::AddClock(uint32_t set, uint32_t clock) {
  std::vector<uint32_t> members = sets_[set];
  if (std::binary_search(members.begin(), members.end(), clock)) return set;
  members.insert(std::upper_bound(members.begin(), members.end(), clock), clock);
  auto found = set_index_.find(members);
  if (found != set_index_.end()) return found->second;
  const uint32_t index = static_cast<uint32_t>(sets_.size());
  sets_.push_back(members);
  set_index_.emplace(std::move(members), index);
  return index;
}

void ClockNetwork::Build(const TimingGraph& graph, const std::vector<sdc::Clock*>& clocks,
                         const Sensitization& sensitization) {
  clocks_ = clocks;
  sources_.assign(clocks.size(), {});
  ideal_.assign(clocks.size(), false);
  set_of_.assign(graph.TableSize(), 0);
  sets_.assign(1, {});
  set_index_.clear();
  set_index_.emplace(std::vector<uint32_t>(), 0);
  std::vector<uint32_t> stack;
  std::vector<uint32_t> reached_by(graph.TableSize(), ~0u);
  std::vector<uint32_t> tree_of(graph.TableSize(), ~0u);
  std::vector<uint32_t> reached;
  auto passes = [&](uint32_t e) {
    const Edge& edge = graph.Edges()[e];
    return (edge.role == EdgeRole::kWire || edge.role == EdgeRole::kCombinational) &&
           !edge.BreaksLoop() && !sensitization.EdgeDisabled(e);
  };
  for (uint32_t c = 0; c < clocks.size(); ++c) {
    ideal_[c] = !clocks[c]->isPropagated();
    reached.clear();
    for (const cdm::Pin* pin : clocks[c]->getSources()) {
      const uint32_t v = pin ? pin->GetVertexId() : 0;
      if (v == 0 || !graph.HasVertex(v)) continue;
      sources_[c].push_back(v);
      if (sensitization.Value(v) >= 0 || reached_by[v] == c) continue;
      reached_by[v] = c;
      stack.push_back(v);
    }
    // Forward: what the clock reaches.
    while (!stack.empty()) {
      const uint32_t v = stack.back();
      stack.pop_back();
      reached.push_back(v);
      for (uint32_t e = graph.OutBegin(v); e < graph.OutEnd(v); ++e) {
        const uint32_t to = graph.Edges()[e].to;
        if (!passes(e) || reached_by[to] == c) continue;
        reached_by[to] = c;
        stack.push_back(to);
      }
    }
    // Backward: of that, what leads to a register's clock pin (a branch
    // that only feeds data is no part of the network), and the sources.
    for (uint32_t v : reached) {
      bool clock_pin = false;
      for (uint32_t e = graph.OutBegin(v); e < graph.OutEnd(v) && !clock_pin; ++e) {
        const EdgeRole role = graph.Edges()[e].role;
        clock_pin = role == EdgeRole::kClockToOutput || IsCheck(role);
      }
      if (clock_pin) {
        tree_of[v] = c;
        stack.push_back(v);
      }
    }
    for (uint32_t v : sources_[c]) {
      if (tree_of[v] != c) {
        tree_of[v] = c;
        stack.push_back(v);
      }
    }
    while (!stack.empty()) {
      const uint32_t v = stack.back();
      stack.pop_back();
      set_of_[v] = AddClock(set_of_[v], c);
      for (uint32_t i = graph.InBegin(v); i < graph.InEnd(v); ++i) {
        const uint32_t e = graph.InEdge(i);
        const uint32_t from = graph.Edges()[e].from;
        if (!passes(e) || reached_by[from] != c || tree_of[from] == c) continue;
        tree_of[from] = c;
        stack.push_back(from);
      }
    }
  }
}

bool ClockNetwork::IsIdeal(uint32_t vertex) const {
  for (uint32_t c : ClocksAt(vertex))
    if (ideal_[c]) return true;
  return false;
}

bool ClockNetwork::IdealSlew(uint32_t vertex, int rf, int mm, float& slew) const {
  bool found = false;
  const cdm::RiseFall* edge = rf == 0 ? cdm::RiseFall::rise_ : cdm::RiseFall::fall_;
  const cdm::MinMax* minmax = mm == 0 ? cdm::MinMax::min_ : cdm::MinMax::max_;
  for (uint32_t c : ClocksAt(vertex)) {
    if (!ideal_[c]) continue;
    const float value = clocks_[c]->getTransition().value(edge, minmax);
    if (!found) {
      slew = value;
      found = true;
    } else {
      slew = mm == 0 ? std::min(slew, value) : std::max(slew, value);
    }
  }
  return found;
}

}  // namespace sta
