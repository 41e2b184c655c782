// Works out the switching activity of every flat net of the timed design:
// constants, annotations, clocks and primary inputs first, then through
// the cells by their functions, as the established timing engines do:
// first with every register's state taken as a primary input, then with
// each state taken from its next state as that left it, and through the
// logic again. Cut combinational loops are gone round until the figures
// settle or a bound is reached.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "power/ActivityAnnotations.h"
#include "power/FunctionActivity.h"
#include "power/NetActivity.h"

namespace cdm {
class Cell;
class LibBoolFuncExpr;
class LibSequential;
class Pin;
}  // namespace cdm

namespace sta {
class Timer;
}

namespace power {

class ActivityPropagator {
 public:
  // The timer must be up to date.
  ActivityPropagator(const sta::Timer& timer, const ActivityAnnotations& annotations);

  // Fills `nets`, indexed by flat net id (index 0 unused).
  void Run(std::vector<NetActivity>& nets);
  // Passes over the design the last Run took: the logic is gone over
  // twice, before and after the registers take their data.
  int Passes() const { return passes_; }

  // The most passes each time the logic is gone over.
  static constexpr int kMaxPasses = 50;
  // From this pass on, a figure still moving goes halfway to its new value.
  static constexpr int kDampFrom = 8;

 private:
  // An input of a function: a flat net (0 for none: probability 0.5, no
  // transitions), or a register's state, maybe its complement.
  using Ref = uint32_t;
  static constexpr Ref kState = 1u << 31;
  static constexpr Ref kComplement = 1u << 30;
  static constexpr Ref kIndex = kComplement - 1;

  // A net worked out from its driver's function; a null function stands
  // for a cell nothing is known of.
  struct Node {
    uint32_t net = 0;
    const cdm::LibBoolFuncExpr* function = nullptr;
    uint32_t first = 0, count = 0;  // refs_
    bool reads_state = false;
  };
  // The state of one ff or latch group of one instance: its first state
  // port (the second is the complement).
  struct State {
    const cdm::LibBoolFuncExpr* data = nullptr;
    uint32_t data_first = 0, data_count = 0;
    NetActivity value{0.0, 0.5, ActivityOrigin::kPropagated};
    bool latched = false;  // taken from its next state
  };

  void Seed();
  void Plan();
  // Puts the nodes in an order where each comes after what it reads,
  // registers included, loops cut.
  void Order();
  // Passes over the nodes until nothing moves, the states held.
  void Settle();
  // Takes each state from its next state once, in order, and works out
  // the register outputs that read it.
  void Latch();
  // Adds the refs of `function`'s ports on `cell`, one a port in order;
  // returns the first. Sets `reads_state` when one is a state.
  uint32_t AddRefs(const cdm::LibBoolFuncExpr& function, const cdm::Cell& cell, bool& reads_state);
  uint32_t StateIndex(const cdm::Cell& cell, const cdm::LibSequential* sequential);
  bool Pass();
  bool Dirty(uint32_t first, uint32_t count) const;
  NetActivity Evaluate(const cdm::LibBoolFuncExpr& function, uint32_t first, uint32_t count);
  NetActivity Input(Ref ref) const;
  // What a node's net gets: its function's figures, annotations applied.
  NetActivity Work(const Node& node);
  double Rate(const RateSetting& rate) const;
  void Apply(const ActivitySetting& setting, NetActivity& activity) const;

  const sta::Timer& timer_;
  const ActivityAnnotations& annotations_;
  std::vector<NetActivity>* nets_ = nullptr;
  std::vector<uint8_t> fixed_;        // per flat net: set by a seed, not worked out
  std::vector<int32_t> override_of_;  // per flat net: index into overrides_, -1 for none
  std::vector<int32_t> changed_at_;   // per flat net: the pass it last changed in
  std::vector<ActivitySetting> overrides_;
  std::vector<Node> nodes_;  // inputs first
  std::vector<Ref> refs_;
  std::vector<State> states_;
  std::unordered_map<const cdm::Cell*, uint32_t> first_state_;  // index of a cell's first group
  double fastest_period_ = 0.0;                                 // seconds; 0 without clocks
  int pass_ = 0;
  int passes_ = 0;
  std::vector<Activity> inputs_;  // scratch
};

}  // namespace power
