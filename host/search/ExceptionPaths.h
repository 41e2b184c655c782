// Timing exceptions made ready for the search: each -from, -through and -to
// list as vertices and clock numbers. A path carries, in its tag, how far it
// has come along every exception that names a start pin or a -through: an
// exception is met when the path has passed its start and all its
// -throughs in order and ends at its -to. Exceptions of clocks only (and
// set_clock_groups, as false paths between the groups) are decided at the
// path's end. The timing report's -from/-through/-to filter rides along as
// one more exception.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

namespace sta {

namespace sdc {
class Clock;
class SdcStore;
struct ExceptionPoint;
struct PathException;
}  // namespace sdc

class TimingGraph;

// A -from, -through or -to list.
struct PathPoint {
  bool present = false;
  std::vector<uint32_t> vertices;  // sorted
  std::vector<int> clocks;         // clock numbers
  uint8_t edges = 3;               // bit 0 rise, bit 1 fall

  bool HasVertex(uint32_t vertex) const;
  bool HasClock(int clock) const;
  bool HasEdge(int rf) const { return (edges >> rf) & 1; }
};

struct CompiledException {
  enum class Kind { kFalsePath, kMulticycle, kMaxDelay, kMinDelay, kGroupPath, kFilter };
  Kind kind = Kind::kFalsePath;
  PathPoint from;
  std::vector<PathPoint> throughs;
  PathPoint to;
  bool setup = true;
  bool hold = true;
  bool start = false;  // multicycle -start
  bool end = false;    // multicycle -end
  float value = 0.0f;  // the multiplier, or seconds
  bool ignore_clock_latency = false;
  std::string group;  // group_path
  int specificity = 0;
  int order = 0;
  // Followed in tags: it names start pins or -throughs.
  bool tracked = false;
};

// Where a report_timing -from/-through/-to reads its objects from.
struct PathFilterSpec {
  const sdc::ExceptionPoint* from = nullptr;
  std::vector<const sdc::ExceptionPoint*> throughs;
  const sdc::ExceptionPoint* to = nullptr;
};

class ExceptionPaths {
 public:
  static constexpr uint32_t kDropped = ~0u;

  // `store` may be null; `filter` adds the report filter.
  void Build(const TimingGraph& graph, sdc::SdcStore* store, const std::vector<sdc::Clock*>& clocks,
             const PathFilterSpec* filter);
  bool Empty() const { return exceptions_.empty(); }
  bool HasFilter() const { return filter_ >= 0; }
  const std::vector<CompiledException>& All() const { return exceptions_; }

  // The states of a path launched at `vertex` (or at `other`, the pin it
  // launches through: a register's output) by `clock` (-1 none) with edge
  // `rf` there; kDropped when a false path starting there drops it.
  uint32_t Start(uint32_t vertex, uint32_t other, int clock, int rf);
  // The states after the path reached `vertex` with edge `rf`.
  uint32_t Advance(uint32_t states, uint32_t vertex, int rf) {
    if (through_at_.empty() || !through_at_.count(vertex)) return states;
    return AdvanceAt(states, vertex, rf);
  }
  // A start with the report filter: only paths launched at its -from.
  bool FilterAllowsStart(uint32_t vertex, uint32_t other, int clock, int rf) const;

  // The exception in force for a path end (false path, multicycle, max or
  // min delay), or null. `setup` chooses between the setup and hold side.
  const CompiledException* Applying(uint32_t states, int launch_clock, uint32_t end_vertex,
                                    int end_rf, int capture_clock, bool setup) const;
  // The group_path group of a path end, or null.
  const std::string* Group(uint32_t states, int launch_clock, uint32_t end_vertex, int end_rf,
                           int capture_clock) const;
  // The path end passes the report filter (always true without one).
  bool FilterAccepts(uint32_t states, int launch_clock, uint32_t end_vertex, int end_rf,
                     int capture_clock) const;

 private:
  void Add(CompiledException exception);
  void AddClockGroups(sdc::SdcStore& store, const std::vector<sdc::Clock*>& clocks);
  uint32_t AdvanceAt(uint32_t states, uint32_t vertex, int rf);
  uint32_t Intern(std::vector<uint32_t> items);
  bool Complete(uint32_t states, int index) const;
  bool Matches(const CompiledException& exception, uint32_t states, int launch_clock,
               uint32_t end_vertex, int end_rf, int capture_clock) const;
  bool Drops(const std::vector<uint32_t>& items) const;

  std::vector<CompiledException> exceptions_;
  int filter_ = -1;
  // Per vertex: exceptions whose -from names it; items (exception << 8 |
  // position) of the -throughs that name it.
  std::unordered_map<uint32_t, std::vector<uint32_t>> from_at_;
  std::unordered_map<uint32_t, std::vector<uint32_t>> through_at_;
  std::vector<int> clock_from_;  // tracked exceptions that start at clocks
  // State sets: sorted items (exception << 8 | throughs passed); 0 is empty.
  std::vector<std::vector<uint32_t>> sets_;
  std::map<std::vector<uint32_t>, uint32_t> set_index_;
  std::unordered_map<uint64_t, uint32_t> advance_cache_;
};

}  // namespace sta
