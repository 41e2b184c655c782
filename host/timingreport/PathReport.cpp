#include "timingreport/PathReport.h"

#include <algorithm>
#include <cmath>

#include "graph/ArcRoles.h"
#include "graph/TimingGraph.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/LibTiming.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/sta/Clock.h"
#include "search/ArrivalSearch.h"
#include "search/CycleAccounting.h"
#include "search/ExceptionPaths.h"
#include "search/PathEnds.h"
#include "search/Timer.h"
#include "search/TimingSearch.h"

namespace sta {
namespace {

constexpr size_t kPointWidth = 40;
constexpr size_t kNumberWidth = 10;

const char* EdgeMark(int rf) {
  return rf == 0 ? "r" : "f";
}

const char* DirectionText(const cdm::Port* port) {
  switch (port->GetDirection()) {
    case cdm::kDirInput:
      return "in";
    case cdm::kDirOutput:
      return "out";
    case cdm::kDirInout:
      return "inout";
    default:
      return "internal";
  }
}

}  // namespace

PathReport::PathReport(Timer& timer, TimingSearch& search, const PathReportOptions& options)
    : timer_(timer),
      search_(search.Arrivals()),
      groups_(&search.Ends()),
      options_(options),
      numbers_(options.digits) {}

std::string PathReport::PinName(uint32_t vertex) const {
  const cdm::Pin* pin = timer_.Graph()->vertex(vertex)->pin();
  const std::string name = pin->GetFullName();
  if (pin->IsTopPortPin()) return name + " (" + DirectionText(pin->GetPort()) + ")";
  const cdm::Cell* cell = pin->GetCell();
  return name + " (" + (cell ? cell->GetRefName() : std::string("?")) + ")";
}

std::string PathReport::StartPin(const TimingPath& path) const {
  return timer_.Graph()->vertex(path.stages.front().vertex)->pin()->GetFullName();
}

std::string PathReport::EndPin(const PathEnd& end) const {
  return timer_.Graph()->vertex(end.vertex)->pin()->GetFullName();
}

const std::string& PathReport::Group(const PathEnd& end) const {
  return groups_->Groups()[end.group];
}

std::string PathReport::Startpoint(const TimingPath& path) const {
  const TimingGraph& graph = *timer_.Graph();
  const PathStage& first = path.stages.front();
  const cdm::Pin* pin = graph.vertex(first.vertex)->pin();
  const Tag& tag = search_.Tags().Get(path.end->tag);
  const std::string clock =
      tag.clock_edge >= 0 ? (*search_.Context().clocks)[tag.clock_edge / 2]->Name() : "";
  if (path.from_register) {
    const Edge& launch = graph.Edges()[path.stages[1].edge];
    const bool falling = launch.arc_set && ClockEdgeOf(*launch.arc_set) == 1;
    const cdm::Cell* cell = pin->GetCell();
    return (cell ? cell->GetFullName() : pin->GetFullName()) + " (" +
           (falling ? "falling" : "rising") + " edge-triggered flip-flop clocked by " + clock + ")";
  }
  std::string kind = pin->IsTopPortPin() ? "input port" : "internal pin";
  if (path.seed && path.seed->kind == ArrivalSeed::Kind::kClockSource)
    return pin->GetFullName() + " (clock source '" + clock + "')";
  if (clock.empty()) return pin->GetFullName() + " (" + kind + ")";
  return pin->GetFullName() + " (" + kind + " clocked by " + clock + ")";
}

std::string PathReport::Endpoint(const PathEnd& end) const {
  const TimingGraph& graph = *timer_.Graph();
  const cdm::Pin* pin = graph.vertex(end.vertex)->pin();
  const std::vector<sdc::Clock*>& clocks = *search_.Context().clocks;
  const std::string clock = end.capture_edge >= 0 ? clocks[end.capture_edge / 2]->Name() : "";
  if (end.kind == PathEnd::Kind::kCheck) {
    const Edge& check = graph.Edges()[end.edge];
    const bool falling = check.arc_set && ClockEdgeOf(*check.arc_set) == 1;
    const cdm::Cell* cell = pin->GetCell();
    const std::string what =
        end.async ? (end.setup ? "recovery check" : "removal check") : "flip-flop";
    return (cell ? cell->GetFullName() : pin->GetFullName()) + " (" +
           (falling ? "falling" : "rising") + " edge-triggered " + what + " clocked by " + clock +
           ")";
  }
  const std::string kind = pin->IsTopPortPin() ? "output port" : "internal pin";
  if (end.kind == PathEnd::Kind::kPathDelay || clock.empty())
    return pin->GetFullName() + " (" + kind + ")";
  return pin->GetFullName() + " (" + kind + " clocked by " + clock + ")";
}

void PathReport::Value(const std::string& point, double incr, double path,
                       const std::string& edge) {
  Row row;
  row.point = point;
  row.incr = numbers_.Time(incr);
  row.path = numbers_.Time(path) + (edge.empty() ? "" : " " + edge);
  rows_.push_back(row);
}

void PathReport::Total(const std::string& point, double path) {
  Row row;
  row.point = point;
  row.path = numbers_.Time(path);
  rows_.push_back(row);
}

void PathReport::PinRow(const PathStage& stage, double incr, bool mm_max) {
  const TimingGraph& graph = *timer_.Graph();
  const int mm = mm_max ? 1 : 0;
  const Vertex* vertex = graph.vertex(stage.vertex);
  Row row;
  row.point = PinName(stage.vertex);
  row.incr = numbers_.Time(incr);
  row.path = numbers_.Time(stage.arrival) + " " + EdgeMark(stage.rf);
  if (options_.transition_time) row.trans = numbers_.Time(graph.Slew(stage.vertex, stage.rf, mm));
  const bool drives = vertex->isDriver();
  if (options_.capacitance && drives && !options_.nets)
    row.cap = numbers_.Cap(timer_.DelayCalc().Load(stage.vertex, stage.rf, mm).Total());
  rows_.push_back(row);
  if (options_.nets && drives) {
    const cdm::Net* net = vertex->pin()->GetNet();
    Row net_row;
    net_row.point = (net ? net->GetFullName() : std::string("?")) + " (net)";
    if (options_.capacitance)
      net_row.cap = numbers_.Cap(timer_.DelayCalc().Load(stage.vertex, stage.rf, mm).Total());
    rows_.push_back(net_row);
  }
}

std::string PathReport::ClockLine(int clock_edge) const {
  const sdc::Clock* clock = (*search_.Context().clocks)[clock_edge / 2];
  return "clock " + clock->Name() + (clock_edge % 2 == 0 ? " (rise edge)" : " (fall edge)");
}

std::string PathReport::NetworkLine(int clock) const {
  return search_.IdealClock(clock) ? "clock network delay (ideal)"
                                   : "clock network delay (propagated)";
}

void PathReport::LaunchRows(const TimingPath& path) {
  const PathEnd& end = *path.end;
  const bool setup = end.setup;
  const int mm = setup ? 1 : 0;
  const PathStage& first = path.stages.front();
  const int slot = first.rf * 2 + mm;
  const Tag& tag = search_.Tags().Get(first.tag);
  const int edge = tag.clock_edge;
  const double edge_time = edge >= 0 ? timer_.Cycles().EdgeTime(edge) + end.launch_shift : 0.0;
  if (path.from_register) {
    Value(ClockLine(edge), edge_time, edge_time);
    Value(NetworkLine(edge / 2), path.clock_arrival - edge_time, path.clock_arrival);
    PinRow(first, 0.0, setup);
    return;
  }
  const ArrivalSeed* seed = path.seed;
  if (!seed) {
    PinRow(first, first.arrival, setup);
    return;
  }
  double at = 0.0;
  if (edge >= 0) {
    Value(ClockLine(edge), edge_time, edge_time);
    at = edge_time + seed->latency[slot];
    Value(NetworkLine(edge / 2), seed->latency[slot], at);
  }
  if (seed->kind == ArrivalSeed::Kind::kInputDelay) {
    const double delay = first.arrival - at - seed->drive_delay[slot];
    at += delay;
    Value("input external delay", delay, at, EdgeMark(first.rf));
  }
  PinRow(first, first.arrival - at, setup);
}

void PathReport::CaptureRows(const TimingPath& path) {
  const PathEnd& end = *path.end;
  const bool setup = end.setup;
  using Kind = CompiledException::Kind;
  const bool path_delay = end.exception && (end.exception->kind == Kind::kMaxDelay ||
                                            end.exception->kind == Kind::kMinDelay);
  double at = end.capture_time;
  if (path_delay) {
    Value(setup ? "max_delay" : "min_delay", end.capture_time, at);
  } else if (end.capture_edge >= 0) {
    Value(ClockLine(end.capture_edge), end.capture_time, at);
  }
  if (end.kind == PathEnd::Kind::kPathDelay) {
    Total("data required time", end.required);
    return;
  }
  if (end.capture_edge >= 0 && (end.kind == PathEnd::Kind::kCheck || !path_delay)) {
    at += end.clock_latency;
    Value(NetworkLine(end.capture_edge / 2), end.clock_latency, at);
  }
  if (end.uncertainty != 0.0f) {
    const double signed_value = setup ? -end.uncertainty : end.uncertainty;
    at += signed_value;
    Value("clock uncertainty", signed_value, at);
  }
  if (end.kind == PathEnd::Kind::kCheck) {
    const uint32_t clock_pin = timer_.Graph()->Edges()[end.edge].from;
    Row row;
    row.point = PinName(clock_pin);
    row.path = numbers_.Time(at) + " " + EdgeMark(end.clock_rf);
    rows_.push_back(row);
    const double margin = setup ? -end.margin : end.margin;
    // The last step lands on the required time itself, so that the row and
    // "data required time" below it round alike.
    at = end.required;
    const std::string what = end.async ? (setup ? "library recovery time" : "library removal time")
                                       : (setup ? "library setup time" : "library hold time");
    Value(what, margin, at);
  } else {
    at = end.required;
    Value("output external delay", -end.margin, at);
  }
  Total("data required time", end.required);
}

std::vector<std::string> PathReport::Full(const TimingPath& path) {
  const PathEnd& end = *path.end;
  rows_.clear();
  LaunchRows(path);
  // The stages after the start; input pins only with -input_pins, their
  // delay then going to the next row shown.
  const TimingGraph& graph = *timer_.Graph();
  double pending = 0.0;
  for (size_t i = 1; i < path.stages.size(); ++i) {
    const PathStage& stage = path.stages[i];
    pending += stage.delay;
    const bool last = i + 1 == path.stages.size();
    const bool input_pin = !graph.vertex(stage.vertex)->isDriver();
    if (input_pin && !last && !options_.input_pins) continue;
    PinRow(stage, pending, end.setup);
    pending = 0.0;
  }
  Total("data arrival time", path.arrival);
  rows_.push_back(Row{});
  CaptureRows(path);
  Row rule;
  rule.rule = true;
  rows_.push_back(rule);
  if (end.setup) {
    Total("data required time", end.required);
    Total("data arrival time", -path.arrival);
  } else {
    Total("data arrival time", path.arrival);
    Total("data required time", -end.required);
  }
  rows_.push_back(rule);
  Total(path.slack < 0.0f ? "slack (VIOLATED)" : "slack (MET)", path.slack);

  std::vector<std::string> lines;
  lines.push_back("Startpoint: " + Startpoint(path));
  lines.push_back("Endpoint: " + Endpoint(end));
  lines.push_back("Path Group: " + Group(end));
  lines.push_back(std::string("Path Type: ") + (end.setup ? "max" : "min"));
  lines.push_back("");
  std::vector<std::string> body = Render();
  lines.insert(lines.end(), body.begin(), body.end());
  return lines;
}

std::vector<std::string> PathReport::Render() const {
  size_t point_width = kPointWidth;
  for (const Row& row : rows_) point_width = std::max(point_width, row.point.size() + 2);
  std::string heading = PadRight("Point", point_width);
  if (options_.capacitance) heading += PadLeft("Cap", kNumberWidth);
  if (options_.transition_time) heading += PadLeft("Trans", kNumberWidth);
  heading += PadLeft("Incr", kNumberWidth) + PadLeft("Path", kNumberWidth);
  std::vector<std::string> lines;
  lines.push_back(heading);
  const std::string rule(heading.size(), '-');
  lines.push_back(rule);
  for (const Row& row : rows_) {
    if (row.rule) {
      lines.push_back(rule);
      continue;
    }
    if (row.point.empty()) {
      lines.push_back("");
      continue;
    }
    std::string line = PadRight(row.point, point_width);
    if (options_.capacitance) line += PadLeft(row.cap, kNumberWidth);
    if (options_.transition_time) line += PadLeft(row.trans, kNumberWidth);
    line += PadLeft(row.incr, kNumberWidth);
    // The edge mark stands after the path value, outside its column.
    const size_t mark = row.path.find(' ');
    if (mark == std::string::npos) {
      line += PadLeft(row.path, kNumberWidth);
    } else {
      line += PadLeft(row.path.substr(0, mark), kNumberWidth) + row.path.substr(mark);
    }
    while (!line.empty() && line.back() == ' ') line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

}  // namespace sta
