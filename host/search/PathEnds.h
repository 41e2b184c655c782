// The checks at the ends of paths: setup and hold (recovery and removal too)
// at register inputs against the clock at the register, output delays, and
// set_max_delay / set_min_delay ends; each with its required time, slack and
// path group. Multicycle paths move the capture edge; false paths and clock
// groups remove the end.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "search/ArrivalSearch.h"

namespace cdm {
class Pin;
}

namespace sta {

namespace sdc {
class OutputDelay;
class SdcStore;
}  // namespace sdc

// Whether `name` can name a path group: a clock's (the paths it captures),
// one of group_path, or one of the two default groups ("**default**",
// "**async_default**"), whether or not a path belongs to it now.
bool IsPathGroupName(sdc::SdcStore* store, const std::string& name);

struct CompiledException;

struct PathEnd {
  enum class Kind : uint8_t { kCheck, kOutputDelay, kPathDelay };
  Kind kind = Kind::kCheck;
  bool setup = true;     // the setup side (latest arrivals); else hold (earliest)
  bool async = false;    // a recovery or removal check
  uint8_t rf = 0;        // the data edge at the end
  uint8_t clock_rf = 0;  // kCheck: the clock's edge at the clock pin
  uint32_t vertex = 0;
  uint32_t tag = 0;        // of the data arrival
  uint32_t edge = 0;       // kCheck: the check edge (from the clock pin)
  uint32_t clock_tag = 0;  // kCheck: of the clock arrival at the clock pin
  const sdc::OutputDelay* output_delay = nullptr;
  const CompiledException* exception = nullptr;  // max/min delay or multicycle in force
  int launch_edge = -1;                          // clock edges, -1 none
  int capture_edge = -1;
  uint32_t group = 0;
  // The launch is shown in the period whose capture is checked: arrival and
  // required times are those of that launch, `launch_shift` (whole launch
  // periods) after the launch edge of the first period.
  float launch_shift = 0.0f;
  float arrival = 0.0f;
  float required = 0.0f;
  float slack = 0.0f;
  // How the required time is made up, for the report: the capture edge's
  // time (after the relation and multicycles) or the max/min delay, the
  // capture clock's latency (its arrival at the pin less the edge), the
  // uncertainty (always positive: taken off for setup, added for hold), and
  // the library's setup or hold time or the output delay.
  float capture_time = 0.0f;
  float clock_latency = 0.0f;
  float uncertainty = 0.0f;
  float margin = 0.0f;
};

class PathEnds {
 public:
  void Find(ArrivalSearch& search);

  const std::vector<PathEnd>& Ends() const { return ends_; }
  // Path group names by number; setup and hold ends share them.
  const std::vector<std::string>& Groups() const { return groups_; }

 private:
  void VisitEnd(uint32_t vertex);
  void CheckEnds(uint32_t vertex, const Arrival& data, int rf, bool setup);
  void OutputDelayEnds(uint32_t vertex, const Arrival& data, int rf, bool setup);
  void PathDelayEnd(uint32_t vertex, const Arrival& data, int rf, bool setup);
  // The relation of launch and capture with the multicycles in force.
  bool Relate(PathEnd& end, const Tag& data_tag, double& capture_time,
              const CompiledException*& exception);
  float Uncertainty(int launch_edge, int capture_edge, bool setup, const cdm::Pin* clock_pin);
  uint32_t GroupOf(const PathEnd& end, const Tag& data_tag, const std::string& clock_group);
  void Finish(PathEnd& end);

  ArrivalSearch* search_ = nullptr;
  std::vector<PathEnd> ends_;
  std::vector<std::string> groups_;
  std::unordered_map<std::string, uint32_t> group_index_;
  std::unordered_map<uint32_t, const std::vector<sdc::OutputDelay*>*> output_delays_;
  std::vector<bool> delay_ends_;  // per vertex: the -to of a max or min delay
  bool any_path_delay_ = false;
};

}  // namespace sta
