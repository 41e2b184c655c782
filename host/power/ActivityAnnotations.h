// What set_switching_activity, read_saif and read_vcd set: activity of named
// nets, and the activity of every primary input and every register output.
// Nets are kept by full name and found again whenever the figures are
// worked out, so a re-link keeps them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "power/ActivityOrigin.h"

namespace power {

// A toggle rate, absolute (transitions per second) or relative to a clock
// period (transitions per period).
struct RateSetting {
  double value = 0.0;
  bool per_fastest_clock = false;  // transitions per period of the fastest clock
};

// An annotation: either figure may be left out, which leaves that figure
// to the rest of the analysis.
struct ActivitySetting {
  std::optional<RateSetting> rate;
  std::optional<double> probability;
  ActivityOrigin origin = ActivityOrigin::kUser;
};

class ActivityAnnotations {
 public:
  ActivityAnnotations();

  // The net of full name `net` gets `setting`; the figures it gives replace
  // those set before, the others stay.
  void SetNet(const std::string& net, const ActivitySetting& setting);
  // Named nets in the order first set, each with its setting.
  const std::vector<std::pair<std::string, ActivitySetting>>& Nets() const { return nets_; }

  // Primary inputs (0.1 toggles per period of the fastest clock and
  // probability 0.5 unless set) and register outputs (worked out through
  // the registers unless set).
  void SetInputs(const ActivitySetting& setting);
  void SetRegisters(const ActivitySetting& setting);
  const ActivitySetting& Inputs() const { return inputs_; }
  const ActivitySetting& Registers() const { return registers_; }

  // Forgets every annotation.
  void Clear();
  // Counts every change, so that the figures know to be worked out again.
  uint64_t Generation() const { return generation_; }

 private:
  static void Merge(ActivitySetting& into, const ActivitySetting& from);

  std::vector<std::pair<std::string, ActivitySetting>> nets_;
  std::unordered_map<std::string, size_t> index_;
  ActivitySetting inputs_;
  ActivitySetting registers_;
  uint64_t generation_ = 1;
};

}  // namespace power
