#include "timingreport/ConstraintRows.h"

#include <algorithm>
#include <map>
#include <unordered_map>

#include "graph/TimingGraph.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Pin.h"
#include "search/DesignRules.h"
#include "search/PathEnds.h"
#include "search/Timer.h"

namespace sta {
namespace {

using Kind = ConstraintRow::Kind;
using Measure = ConstraintRow::Measure;

void Finish(ConstraintRow& row) {
  std::sort(row.items.begin(), row.items.end(),
            [](const ConstraintItem& a, const ConstraintItem& b) {
              return a.slack != b.slack ? a.slack < b.slack : a.name < b.name;
            });
  row.worst_slack = row.items.empty() ? 0.0 : row.items.front().slack;
  row.cost = 0.0;
  for (const ConstraintItem& item : row.items)
    if (item.slack < 0.0) row.cost -= item.slack;
}

// Setup or hold rows, one per path group: the worst end of each endpoint.
void PathRows(Timer& timer, bool setup, std::vector<ConstraintRow>& rows) {
  const PathEnds& ends = timer.Search().Ends();
  const TimingGraph& graph = *timer.Graph();
  // group -> vertex -> the worst end there
  std::map<std::string, std::unordered_map<uint32_t, const PathEnd*>> worst;
  for (const PathEnd& end : ends.Ends()) {
    if (end.setup != setup) continue;
    const PathEnd*& kept = worst[ends.Groups()[end.group]][end.vertex];
    if (!kept || end.slack < kept->slack) kept = &end;
  }
  for (const auto& [group, by_vertex] : worst) {
    ConstraintRow row;
    row.kind = setup ? Kind::kSetup : Kind::kHold;
    row.measure = Measure::kTime;
    row.group = group;
    row.label =
        std::string(setup ? "max_delay/setup" : "min_delay/hold") + " ('" + group + "' group)";
    for (const auto& [vertex, end] : by_vertex) {
      row.items.push_back(
          {graph.vertex(vertex)->pin()->GetFullName(), end->required, end->arrival, end->slack});
    }
    Finish(row);
    rows.push_back(std::move(row));
  }
}

void RuleRows(Timer& timer, std::vector<ConstraintRow>& rows) {
  DesignRules rules;
  rules.Check(timer);
  struct RuleRow {
    RuleCheck::Kind rule;
    Kind kind;
    Measure measure;
    const char* label;
  };
  const RuleRow order[] = {
      {RuleCheck::Kind::kMaxTransition, Kind::kMaxTransition, Measure::kTime, "max_transition"},
      {RuleCheck::Kind::kMaxCapacitance, Kind::kMaxCapacitance, Measure::kCapacitance,
       "max_capacitance"},
      {RuleCheck::Kind::kMinCapacitance, Kind::kMinCapacitance, Measure::kCapacitance,
       "min_capacitance"},
      {RuleCheck::Kind::kMaxFanout, Kind::kMaxFanout, Measure::kCount, "max_fanout"},
      {RuleCheck::Kind::kMaxArea, Kind::kMaxArea, Measure::kCount, "max_area"},
  };
  const TimingGraph& graph = *timer.Graph();
  for (const RuleRow& each : order) {
    if (!rules.Checked(each.rule)) continue;
    ConstraintRow row;
    row.kind = each.kind;
    row.measure = each.measure;
    row.label = each.label;
    for (const RuleCheck& check : rules.Checks()) {
      if (check.kind != each.rule) continue;
      const std::string name = check.kind == RuleCheck::Kind::kMaxArea
                                   ? timer.Design()->Name()
                                   : graph.vertex(check.vertex)->pin()->GetFullName();
      row.items.push_back({name, check.limit, check.actual, check.slack});
    }
    Finish(row);
    rows.push_back(std::move(row));
  }
}

}  // namespace

std::vector<ConstraintRow> ConstraintRows(Timer& timer) {
  std::vector<ConstraintRow> rows;
  if (!timer.Graph()) return rows;
  PathRows(timer, true, rows);
  PathRows(timer, false, rows);
  RuleRows(timer, rows);
  return rows;
}

}  // namespace sta
