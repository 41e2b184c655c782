// The text of one timing path: its start, end and group, the stages of the
// data path with their incremental and cumulative times and edges, the
// capture side that makes the required time, and the slack.
#pragma once

#include <string>
#include <vector>

#include "search/PathEnumerator.h"
#include "timingreport/ReportNumbers.h"

namespace sta {

class ArrivalSearch;
class PathEnds;
class Timer;
class TimingSearch;
struct PathEnd;

struct PathReportOptions {
  bool input_pins = false;
  bool nets = false;
  bool transition_time = false;
  bool capacitance = false;
  int digits = 2;
};

class PathReport {
 public:
  // `search` is the timer's own or a filtered one over the same graph.
  PathReport(Timer& timer, TimingSearch& search, const PathReportOptions& options);

  // The lines of the full report of `path`.
  std::vector<std::string> Full(const TimingPath& path);
  // "_414_ (rising edge-triggered flip-flop clocked by clk)", "in (input port)".
  std::string Startpoint(const TimingPath& path) const;
  std::string Endpoint(const PathEnd& end) const;
  // The name of a path's first and last pin.
  std::string StartPin(const TimingPath& path) const;
  std::string EndPin(const PathEnd& end) const;
  const ReportNumbers& Numbers() const { return numbers_; }
  // The group name of an end.
  const std::string& Group(const PathEnd& end) const;

 private:
  struct Row {
    std::string point;
    std::string cap;
    std::string trans;
    std::string incr;
    std::string path;
    bool rule = false;  // a line of dashes
  };
  void Value(const std::string& point, double incr, double path, const std::string& edge = "");
  void Total(const std::string& point, double path);
  void PinRow(const PathStage& stage, double incr, bool mm_max);
  void LaunchRows(const TimingPath& path);
  void CaptureRows(const TimingPath& path);
  std::string ClockLine(int clock_edge) const;
  std::string NetworkLine(int clock) const;
  std::string PinName(uint32_t vertex) const;
  std::vector<std::string> Render() const;

  Timer& timer_;
  ArrivalSearch& search_;
  const PathEnds* groups_;
  PathReportOptions options_;
  ReportNumbers numbers_;
  std::vector<Row> rows_;
};

}  // namespace sta
