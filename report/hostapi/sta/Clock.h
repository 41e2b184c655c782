// A clock of the constraint store (create_clock, create_generated_clock)
// and its two edges. Times are in seconds.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "hostapi/cdm/Object.h"
#include "hostapi/cdm/Selectors.h"

namespace cdm {
class Pin;
}

namespace sta::sdc {

class Clock;

// The rising or falling edge of a clock: the first or second time of its
// waveform.
class ClockEdge {
 public:
  const Clock* getClock() const { return clock_; }
  // cdm::RiseFall::rise_ or cdm::RiseFall::fall_.
  const cdm::RiseFall* getRiseFall() const { return rise_fall_; }
  // When the edge comes in the first period, seconds.
  float getTime() const;

 private:
  friend class Clock;
  ClockEdge(const Clock* clock, const cdm::RiseFall* rise_fall)
      : clock_(clock), rise_fall_(rise_fall) {}
  const Clock* clock_;
  const cdm::RiseFall* rise_fall_;
};

class Clock : public cdm::Object {
 public:
  // `name` must outlive the clock (interned in the database's root).
  explicit Clock(const std::string* name);
  ~Clock() override;

  float getPeriod() const { return period_; }
  // The times of the edges within one period, rise first; two or more.
  const std::vector<float>& getWaveform() const { return waveform_; }
  const ClockEdge* getEdge(const cdm::RiseFall* rise_fall) const {
    return rise_fall->index() == 0 ? &rise_edge_ : &fall_edge_;
  }
  // The pins and top ports' pins the clock is defined on; empty for a
  // virtual clock.
  const std::vector<cdm::Pin*>& getSources() const { return sources_; }
  bool isVirtual() const { return sources_.empty(); }
  // set_propagated_clock on the clock or on one of its sources.
  bool isPropagated() const { return propagated_; }
  // create_clock -add: the clock shares its sources with others.
  bool isAdded() const { return added_; }

  // Generated clocks: -source pin, -master_clock, -divide_by,
  // -multiply_by (1 when not given) and -invert.
  bool isGenerated() const { return generated_; }
  cdm::Pin* getGeneratedSource() const { return generated_source_; }
  const Clock* getMasterClock() const { return master_; }
  int getDivideBy() const { return divide_by_; }
  int getMultiplyBy() const { return multiply_by_; }
  bool isInverted() const { return inverted_; }
  // -edges (master edges counted from 1), -edge_shift (seconds, one per
  // edge) and -duty_cycle (percent; 0 when not given); -combinational.
  const std::vector<int>& getEdges() const { return edges_; }
  const std::vector<float>& getEdgeShifts() const { return edge_shifts_; }
  float getDutyCycle() const { return duty_cycle_; }
  bool isCombinational() const { return combinational_; }
  // -comment of the definition.
  const std::string& getComment() const { return comment_; }

  // set_clock_uncertainty: max is the setup side, min the hold side.
  std::optional<float> getUncertainty(const cdm::MinMax* setup_hold) const {
    return uncertainty_[setup_hold->index()];
  }
  // set_clock_latency -source and set_clock_latency (network latency).
  const cdm::RiseFallMinMax& getSourceLatency() const { return source_latency_; }
  const cdm::RiseFallMinMax& getNetworkLatency() const { return network_latency_; }
  // set_clock_transition: the ideal clock's transition at its sinks.
  const cdm::RiseFallMinMax& getTransition() const { return transition_; }

 private:
  friend class SdcStore;  // the store fills the fields
  float period_ = 0.0f;
  std::vector<float> waveform_;
  std::vector<cdm::Pin*> sources_;
  bool propagated_ = false;
  bool added_ = false;
  bool generated_ = false;
  cdm::Pin* generated_source_ = nullptr;
  const Clock* master_ = nullptr;
  int divide_by_ = 1;
  int multiply_by_ = 1;
  bool inverted_ = false;
  std::vector<int> edges_;
  std::vector<float> edge_shifts_;
  float duty_cycle_ = 0.0f;
  bool combinational_ = false;
  std::string comment_;
  std::optional<float> uncertainty_[2];
  cdm::RiseFallMinMax source_latency_;
  cdm::RiseFallMinMax network_latency_;
  cdm::RiseFallMinMax transition_;
  ClockEdge rise_edge_;
  ClockEdge fall_edge_;
  // To find the pins again after the netlist changed.
  std::vector<std::string> source_names_;
  std::string generated_source_name_;
};

}  // namespace sta::sdc
