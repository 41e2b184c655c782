// Delays and slews over the whole graph, level by level: the load each
// driver sees, every arc's delay and output slew, every vertex's slew, and
// the margins of the timing checks.
#pragma once

#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "dcalc/ArcDelayCalc.h"
#include "dcalc/SlewScale.h"

namespace cdm {
class LibCell;
class LibertyLib;
}  // namespace cdm

namespace sta {

namespace sdc {
class DriveCell;
}

class DelayCalcInputs;
class TimingGraph;

class GraphDelayCalc {
 public:
  // `reference` is the library whose slew thresholds the timer's slews use.
  void Run(TimingGraph& graph, const ArcDelayCalc& calc, const DelayCalcInputs& inputs,
           const cdm::LibertyLib* reference);

  // Delay of one arc of an edge (a check's margin for a check edge); 0 for
  // a wire under a model without wire delay and for an arc the edge lacks.
  float ArcDelay(uint32_t edge, int from_rf, int to_rf, int mm) const;
  // The load a driver vertex sees, F, for an edge of its output.
  NetLoad Load(uint32_t driver, int rf, int mm) const;
  // Delay of a top input's driving cell (or of its drive resistance), added
  // to its arrival.
  float DriveDelay(uint32_t port_vertex, int rf, int mm) const;

 private:
  void AllocateArcs(const TimingGraph& graph);
  void VertexSlews(TimingGraph& graph, uint32_t v);
  void DriverLoad(const TimingGraph& graph, uint32_t v);
  void CellArcs(TimingGraph& graph, uint32_t edge_index, float out_slew[2][2], bool seen[2][2]);
  void InputPortSlews(uint32_t v, float slew[2][2]);
  bool DriveCellTiming(const sdc::DriveCell& cell, int rf, int mm, const NetLoad& load,
                       ArcTiming& result);
  void CheckMargins(const TimingGraph& graph, uint32_t edge_index);
  const SlewScale& ScaleOf(const cdm::LibCell* lib_cell);
  static int Slot(int rf, int mm) { return rf * 2 + mm; }

  const ArcDelayCalc* calc_ = nullptr;
  const DelayCalcInputs* inputs_ = nullptr;
  const cdm::LibertyLib* reference_ = nullptr;
  const TimingGraph* graph_ = nullptr;
  static constexpr uint32_t kNone = ~0u;
  std::vector<uint32_t> arc_base_;     // per edge: first of two floats per arc, or kNone
  std::vector<float> arc_values_;      // per arc in bit order: min, max
  std::vector<uint32_t> driver_slot_;  // per vertex: index into loads_, or kNone
  std::vector<NetLoad> loads_;         // four per driver: rise min, rise max, fall min, fall max
  std::unordered_map<uint32_t, std::array<float, 4>> drive_delays_;
  std::unordered_map<const cdm::LibertyLib*, SlewScale> scales_;
};

}  // namespace sta
