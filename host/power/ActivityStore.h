// The switching activity of every flat net of the current design: toggle
// rate, static probability and where they came from. The figures are
// worked out on demand and again whenever the netlist, the constraints or
// the annotations changed.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "power/ActivityAnnotations.h"
#include "power/NetActivity.h"

namespace cdm {
class Net;
class Pin;
}  // namespace cdm

namespace sta {
class Timer;
}

namespace power {

class ActivityStore {
 public:
  explicit ActivityStore(sta::Timer& timer);
  ~ActivityStore();
  ActivityStore(const ActivityStore&) = delete;
  ActivityStore& operator=(const ActivityStore&) = delete;

  // The store of the current timer (TimerMgr's).
  static ActivityStore& Current();

  // Brings the figures up to date (and the timing they rest on); false
  // when there is no linked current design.
  bool Update();

  // After Update: the figures of flat net `id` (from 1), of a net's flat
  // net, of a pin's net. Unknown origin for a net outside the design.
  const NetActivity& OfFlatNet(uint32_t id) const;
  const NetActivity& OfNet(const cdm::Net* net) const;
  const NetActivity& OfPin(const cdm::Pin* pin) const;
  uint32_t FlatNetCount() const {
    return nets_.empty() ? 0 : static_cast<uint32_t>(nets_.size() - 1);
  }

  // What was set for the current design (an empty set without one).
  ActivityAnnotations& Annotations();

  // How many times the figures were worked out, and the passes the last
  // time took (for tests and benchmarks).
  uint64_t ComputeCount() const { return compute_count_; }
  int LastPasses() const { return last_passes_; }

 private:
  struct Stamp {
    const void* design = nullptr;
    uint64_t database = 0;
    uint64_t constraints = 0;
    uint64_t annotations = 0;
    bool operator==(const Stamp& other) const {
      return design == other.design && database == other.database &&
             constraints == other.constraints && annotations == other.annotations;
    }
  };

  sta::Timer& timer_;
  std::map<std::string, ActivityAnnotations> annotations_;  // by design name
  ActivityAnnotations no_design_;
  std::vector<NetActivity> nets_;
  Stamp computed_;
  bool valid_ = false;
  uint64_t compute_count_ = 0;
  int last_passes_ = 0;
};

}  // namespace power
