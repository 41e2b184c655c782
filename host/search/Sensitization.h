// Logic constants and the edges they (and set_disable_timing) turn off.
// Constants come from tie nets and tie cells, set_logic_zero/one on ports
// and set_case_analysis on ports and pins; they travel forward through
// wires and through the functions of combinational cells. An arc is off
// when either end is constant, when the function of its output no longer
// depends on its input under the constants, or when set_disable_timing
// names it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace cdm {
class Design;
class LibBoolFuncExpr;
}  // namespace cdm

namespace sta {

namespace sdc {
class SdcStore;
}

class TimingGraph;

class Sensitization {
 public:
  // Works the constants out over `graph` in level order. `store` may be
  // null (no constraints).
  void Run(const TimingGraph& graph, sdc::SdcStore* store, const cdm::Design* design);

  // -1 when the vertex is not constant, else 0 or 1.
  int Value(uint32_t vertex) const {
    return vertex < values_.size() ? static_cast<int>(values_[vertex]) - 1 : -1;
  }
  bool EdgeDisabled(uint32_t edge) const { return edge < disabled_.size() && disabled_[edge]; }
  // The transitions set_case_analysis rising/falling lets through a vertex:
  // bit 0 rise, bit 1 fall (3 for every other vertex).
  uint8_t Transitions(uint32_t vertex) const {
    return vertex < transitions_.size() ? transitions_[vertex] : 3;
  }
  size_t DisabledCount() const { return disabled_count_; }

 private:
  void Seed(const TimingGraph& graph, sdc::SdcStore* store, const cdm::Design* design);
  void Propagate(const TimingGraph& graph);
  void DisableArcs(const TimingGraph& graph);
  void DisableByConstraints(const TimingGraph& graph, sdc::SdcStore& store);
  int CellOutputValue(const TimingGraph& graph, uint32_t vertex);
  bool ArcSensitive(const TimingGraph& graph, uint32_t edge);
  bool HasConstantInput(const TimingGraph& graph, uint32_t output) const;
  // The truth table of a function, worked out once per run.
  const std::vector<bool>& Table(const cdm::LibBoolFuncExpr& function);

  std::vector<uint8_t> values_;       // per vertex: 0 none, 1 logic 0, 2 logic 1
  std::vector<uint8_t> forced_;       // per vertex: set by a constraint, not computed
  std::vector<uint8_t> transitions_;  // per vertex
  std::vector<bool> disabled_;        // per edge
  size_t disabled_count_ = 0;
  std::unordered_map<const cdm::LibBoolFuncExpr*, std::vector<bool>> tables_;
};

}  // namespace sta
