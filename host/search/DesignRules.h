// Design-rule checks over a timed design: max transition at every pin, max
// and min capacitance and max fanout at every driver, max area of the
// design. Limits come from the constraints (on the design, and on ports for
// their own pins) and from the library (the pin's attribute, else the
// library's default); the tightest applies.
#pragma once

#include <cstdint>
#include <vector>

namespace sta {

class Timer;

struct RuleCheck {
  enum class Kind { kMaxTransition, kMaxCapacitance, kMinCapacitance, kMaxFanout, kMaxArea };
  Kind kind = Kind::kMaxTransition;
  uint32_t vertex = 0;  // the pin (0 for max area)
  float limit = 0.0f;
  float actual = 0.0f;
  // limit - actual for a max rule, actual - limit for a min rule: negative
  // when violated.
  float slack = 0.0f;
};

class DesignRules {
 public:
  // Checks the timer's design (timed already).
  void Check(Timer& timer);

  // Every pin with a limit of each rule, in vertex order.
  const std::vector<RuleCheck>& Checks() const { return checks_; }
  // Whether some pin (or the design) has a limit of the rule.
  bool Checked(RuleCheck::Kind kind) const { return checked_[static_cast<int>(kind)]; }

  // The total area of the design's leaf cells, in the library's area unit.
  static double DesignArea(Timer& timer);

 private:
  void Add(RuleCheck::Kind kind, uint32_t vertex, float limit, float actual);

  std::vector<RuleCheck> checks_;
  bool checked_[5] = {false, false, false, false, false};
};

}  // namespace sta
