// The power of one leaf instance: internal power from its library cell's
// energy tables at the slews and loads the timer found, switching power of
// the nets its outputs drive, and leakage by the state its pins are in.
#pragma once

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "dcalc/SlewScale.h"
#include "hostapi/cdm/PowerRecords.h"
#include "power/FunctionActivity.h"

namespace cdm {
class Cell;
class LibBoolFuncExpr;
class LibCell;
class LibPort;
class LibPowerModel;
class LibertyLib;
class Pin;
}  // namespace cdm

namespace sta {
class Timer;
}

namespace power {

// What the analysis reads of a pin's net: transitions per second, the
// probability that it is 1, and where the figures came from.
struct PinActivity {
  double rate = 0.0;
  double probability = 0.0;
  cdm::PwrActivityOrigin origin = cdm::PwrActivityOrigin::kUnknown;
};
using ActivityOf = std::function<PinActivity(const cdm::Pin*)>;

// The switching of one net an instance drives.
struct DrivenNet {
  const cdm::Pin* driver = nullptr;
  double load = 0.0;  // F, pins and wire
  double vdd = 0.0;   // V
  PinActivity activity;
  double power = 0.0;  // W
};

class CellPower {
 public:
  // `timer` must be up to date; `reference` is the library whose slew
  // thresholds the timer measures in.
  CellPower(const sta::Timer& timer, const cdm::LibertyLib* reference, ActivityOf activity);
  ~CellPower();

  // Zero for an instance without a library cell. `nets`, when given, gets
  // one entry per output pin that drives a net.
  cdm::PowerResult Compute(const cdm::Cell* cell, std::vector<DrivenNet>* nets);

 private:
  struct Arc;
  struct Condition;
  struct Group;
  struct Output;
  struct Plan;
  static Arc ArcOf(const cdm::LibBoolFuncExpr* function, const cdm::LibPort* port);
  const Plan& PlanOf(const cdm::LibCell* lib_cell, const cdm::Cell* cell);
  static std::unique_ptr<Plan> MakePlan(const cdm::LibCell* lib_cell, const cdm::Cell* cell,
                                        const cdm::LibertyLib* reference);

  const sta::Timer& timer_;
  const cdm::LibertyLib* reference_;
  ActivityOf activity_;
  std::unordered_map<const cdm::LibCell*, std::unique_ptr<Plan>> plans_;
  // Per call: the instance's pins by slot, their activity and probability.
  std::vector<const cdm::Pin*> pins_;
  std::vector<PinActivity> acts_;
  std::vector<double> scratch_;
  std::vector<Activity> inputs_;
};

}  // namespace power
