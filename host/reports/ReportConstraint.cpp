// report_constraint: which constraints the design meets and by how much.
// One row per checked constraint with its worst slack, its cost and
// MET/VIOLATED; -all_violators lists the violating endpoints and pins of
// each; -verbose adds the worst path of each path group. The format is in
// docs/timer.md.
#include <boost/any.hpp>
#include <string>
#include <vector>

#include "hostapi/cmd/HostReportCmds.h"
#include "hostapi/msg/Msg.h"
#include "search/PathSelection.h"
#include "search/Timer.h"
#include "timingreport/ConstraintRows.h"
#include "timingreport/PathReport.h"
#include "timingreport/ReportNumbers.h"
#include "timingreport/TimerAccess.h"

namespace {

using sta::ConstraintItem;
using sta::ConstraintRow;
using sta::PadLeft;
using sta::PadRight;
using Kind = ConstraintRow::Kind;

constexpr size_t kNameWidth = 40;
constexpr size_t kNumberWidth = 13;

// The constraints the options keep; none given keeps all.
struct Selection {
  bool all = true;
  bool kinds[7] = {};
  bool Keeps(Kind kind) const { return all || kinds[static_cast<int>(kind)]; }
};

class ConstraintReport {
 public:
  ConstraintReport(sta::Timer& timer, int digits, bool nosplit)
      : timer_(timer), numbers_(digits), digits_(digits), nosplit_(nosplit) {}

  void Summary(const std::vector<const ConstraintRow*>& rows);
  void Violators(const ConstraintRow& row);
  void WorstPath(const ConstraintRow& row);

 private:
  std::string Number(const ConstraintRow& row, double value) const;
  // A row: the name column, then right-aligned columns. A name too long
  // for its column goes on a line of its own unless -nosplit.
  void Line(const std::string& name, const std::string& rest);

  sta::Timer& timer_;
  sta::ReportNumbers numbers_;
  int digits_;
  bool nosplit_;
};

std::string ConstraintReport::Number(const ConstraintRow& row, double value) const {
  switch (row.measure) {
    case ConstraintRow::Measure::kTime:
      return numbers_.Time(value);
    case ConstraintRow::Measure::kCapacitance:
      return numbers_.Cap(value);
    case ConstraintRow::Measure::kCount:
      break;
  }
  return numbers_.Count(value);
}

void ConstraintReport::Line(const std::string& name, const std::string& rest) {
  if (name.size() < kNameWidth || nosplit_) {
    std::string line = PadRight(name, kNameWidth);
    if (name.size() >= kNameWidth) line += ' ';
    msg::Print_Result((line + rest).c_str());
    return;
  }
  msg::Print_Result(name.c_str());
  msg::Print_Result((std::string(kNameWidth, ' ') + rest).c_str());
}

void ConstraintReport::Summary(const std::vector<const ConstraintRow*>& rows) {
  const std::string heading = PadRight("Constraint", kNameWidth) +
                              PadLeft("Worst Slack", kNumberWidth) + PadLeft("Cost", kNumberWidth) +
                              "  Status";
  msg::Print_Result(heading.c_str());
  msg::Print_Result(std::string(heading.size() + 2, '-').c_str());
  for (const ConstraintRow* row : rows) {
    Line(row->label, PadLeft(Number(*row, row->worst_slack), kNumberWidth) +
                         PadLeft(Number(*row, row->cost), kNumberWidth) +
                         (row->Met() ? "  MET" : "  VIOLATED"));
  }
}

void ConstraintReport::Violators(const ConstraintRow& row) {
  msg::Print_Result(row.label.c_str());
  msg::InsertEmptyLine();
  const char* what = row.kind == Kind::kSetup || row.kind == Kind::kHold ? "Endpoint"
                     : row.kind == Kind::kMaxArea                        ? "Design"
                                                                         : "Pin";
  const std::string heading = PadRight(what, kNameWidth) + PadLeft("Required", kNumberWidth) +
                              PadLeft("Actual", kNumberWidth) + PadLeft("Slack", kNumberWidth);
  msg::Print_Result(heading.c_str());
  msg::Print_Result(std::string(heading.size(), '-').c_str());
  for (const ConstraintItem& item : row.items) {
    if (item.slack >= 0.0) break;  // worst first: the violators lead
    Line(item.name, PadLeft(Number(row, item.required), kNumberWidth) +
                        PadLeft(Number(row, item.actual), kNumberWidth) +
                        PadLeft(Number(row, item.slack), kNumberWidth) + "  (VIOLATED)");
  }
}

void ConstraintReport::WorstPath(const ConstraintRow& row) {
  sta::PathSelection selection;
  selection.setup = row.kind == Kind::kSetup;
  selection.groups = {row.group};
  const std::vector<sta::TimingPath> paths = SelectPaths(timer_.Search(), selection);
  if (paths.empty()) return;
  sta::PathReportOptions options;
  options.digits = digits_;
  sta::PathReport report(timer_, timer_.Search(), options);
  msg::InsertEmptyLine();
  for (const std::string& line : report.Full(paths.front())) msg::Print_Result(line.c_str());
}

}  // namespace

// The options are read through the command base: the accessors of the
// command object live in the module, which the host does not link.
int ReportConstraintCmd::exec() {
  boost::any any;
  const int digits = getOptionValue("significant_digits", any) ? boost::any_cast<int>(any) : 2;
  if (digits < 0 || digits > 13) {
    SetTclError(name() + ": -significant_digits must lie between 0 and 13");
    return 1;
  }
  // Constraints this timer does not check: their flags select nothing.
  const std::pair<const char*, bool> unchecked[] = {
      {"critical_range", getOptionValue("critical_range")},
      {"cell_degradation", getOptionValue("cell_degradation")},
      {"max_toggle_rate", getOptionValue("max_toggle_rate")},
      {"min_porosity", getOptionValue("min_porosity")},
      {"max_dynamic_power", getOptionValue("max_dynamic_power")},
      {"max_leakage_power", getOptionValue("max_leakage_power")},
      {"max_total_power", getOptionValue("max_total_power")},
      {"max_net_length", getOptionValue("max_net_length")},
      {"min_pulse_width", getOptionValue("min_pulse_width")},
      {"min_period", getOptionValue("min_period")},
      {"connection_class", getOptionValue("connection_class")},
      {"multiport_net", getOptionValue("multiport_net")},
      {"ignore_infeasible_paths", getOptionValue("ignore_infeasible_paths")},
  };
  Selection selection;
  for (const auto& [option, given] : unchecked) {
    if (!given) continue;
    msg::ReportMsg(Report_001, name().c_str(), (std::string("-") + option).c_str());
    if (std::string(option) != "ignore_infeasible_paths") selection.all = false;
  }
  const std::pair<Kind, bool> kept[] = {
      {Kind::kSetup, getOptionValue("max_delay")},
      {Kind::kHold, getOptionValue("min_delay")},
      {Kind::kMaxTransition, getOptionValue("max_transition")},
      {Kind::kMaxCapacitance, getOptionValue("max_capacitance")},
      {Kind::kMinCapacitance, getOptionValue("min_capacitance")},
      {Kind::kMaxFanout, getOptionValue("max_fanout")},
      {Kind::kMaxArea, getOptionValue("max_area")},
  };
  for (const auto& [kind, given] : kept) {
    if (!given) continue;
    selection.all = false;
    selection.kinds[static_cast<int>(kind)] = true;
  }

  sta::Timer* timer = sta::UpdatedTimer();
  if (!timer) {
    msg::Print_Result("report_constraint: no linked current design to time.");
    return 1;
  }
  const std::vector<ConstraintRow> all_rows = sta::ConstraintRows(*timer);
  std::vector<const ConstraintRow*> rows;
  for (const ConstraintRow& row : all_rows)
    if (selection.Keeps(row.kind)) rows.push_back(&row);

  const bool violators = getOptionValue("all_violators");
  const bool verbose = getOptionValue("verbose");
  std::vector<std::string> banner{"Report : constraint"};
  if (violators) banner.push_back("        -all_violators");
  if (verbose) banner.push_back("        -verbose");
  sta::PrintBanner(banner);
  if (rows.empty()) {
    msg::Print_Result("No constraints checked.");
    return 0;
  }

  ConstraintReport report(*timer, digits, getOptionValue("nosplit"));
  const auto path_row = [](const ConstraintRow* row) {
    return row->kind == Kind::kSetup || row->kind == Kind::kHold;
  };
  if (!violators) {
    report.Summary(rows);
    if (verbose)
      for (const ConstraintRow* row : rows)
        if (path_row(row)) report.WorstPath(*row);
    return 0;
  }
  bool first = true;
  for (const ConstraintRow* row : rows) {
    if (row->Met()) continue;
    if (!first) msg::InsertEmptyLine();
    first = false;
    report.Violators(*row);
    if (verbose && path_row(row)) report.WorstPath(*row);
  }
  if (first) msg::Print_Result("No constraint violations.");
  return 0;
}

int ReportConstraintCmd::postExec() {
  return 0;
}
