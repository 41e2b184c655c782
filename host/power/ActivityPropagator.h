// Works out the switching activity of every flat net of the timed design:
// constants, annotations, clocks and primary inputs first, then through
// the cells in level order (combinational cells by their functions,
// registers by their next state and clock). Loops, through registers or
// cut combinational ones, are gone round again until the figures settle
// or a bound is reached.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

#include "power/ActivityAnnotations.h"
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
  // Passes over the design the last Run took.
  int Passes() const { return passes_; }

  // The most passes a Run makes.
  static constexpr int kMaxPasses = 50;

 private:
  struct Override {
    ActivitySetting setting;
    bool set = false;
  };
  struct State {
    NetActivity first;  // of the group's first state port
    int pass = -1;      // the pass it was worked out in
    bool busy = false;  // being worked out (a next state that reads itself)
  };

  void Seed();
  bool Pass();
  NetActivity CellOutput(const cdm::Pin* pin);
  NetActivity Evaluate(const cdm::LibBoolFuncExpr& function, const cdm::Cell& cell,
                       const cdm::LibSequential* self);
  NetActivity StateOf(const cdm::Cell& cell, const cdm::LibSequential* sequential);
  NetActivity OfPin(const cdm::Pin* pin) const;
  double Rate(const RateSetting& rate) const;
  void Apply(const ActivitySetting& setting, NetActivity& activity) const;
  const std::vector<bool>& Table(const cdm::LibBoolFuncExpr& function);

  const sta::Timer& timer_;
  const ActivityAnnotations& annotations_;
  std::vector<NetActivity>* nets_ = nullptr;
  std::vector<uint8_t> fixed_;        // per flat net: set by a seed, not worked out
  std::vector<int32_t> override_of_;  // per flat net: index into overrides_, -1 for none
  std::vector<ActivitySetting> overrides_;
  double fastest_period_ = 0.0;  // seconds; 0 without clocks
  int pass_ = 0;
  bool read_state_ = false;  // the function evaluated read a register's state
  int passes_ = 0;
  std::unordered_map<const cdm::LibBoolFuncExpr*, std::vector<bool>> tables_;
  std::unordered_map<const cdm::Cell*, std::vector<State>> states_;
};

}  // namespace power
