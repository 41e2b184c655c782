// report_timing: the worst paths of each path group, in full, as a summary
// line each, or as their ends.
#include <algorithm>
#include <boost/any.hpp>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cmd/CommonCmd.h"
#include "hostapi/msg/Msg.h"
#include "query/ObjectArgs.h"
#include "sdc/PathException.h"
#include "search/PathEnds.h"
#include "search/PathSelection.h"
#include "search/Timer.h"
#include "search/TimingSearch.h"
#include "timingreport/PathReport.h"
#include "timingreport/TextTable.h"
#include "timingreport/TimerAccess.h"

namespace sta {
namespace {

using query::ObjectKind;

void PrintLines(const std::vector<std::string>& lines) {
  for (const std::string& line : lines) msg::Print_Result(line.c_str());
}

// -path_type summary: one line per path; end: one line per path end.
void PrintTable(PathReport& report, const std::vector<TimingPath>& paths, bool ends) {
  const ReportNumbers& numbers = report.Numbers();
  TextTable table(
      ends ? std::vector<std::string>{"Endpoint", "Path Delay", "Path Required", "Slack"}
           : std::vector<std::string>{"Startpoint", "Endpoint", "Slack"},
      ends ? std::vector<bool>{false, true, true, true} : std::vector<bool>{false, false, true});
  for (const TimingPath& path : paths) {
    const PathEnd& end = *path.end;
    if (ends) {
      table.Add({report.EndPin(end), numbers.Time(path.arrival), numbers.Time(end.required),
                 numbers.Time(path.slack)});
    } else {
      table.Add({report.StartPin(path), report.EndPin(end), numbers.Time(path.slack)});
    }
  }
  table.Print();
}

void PrintPaths(PathReport& report, const std::vector<TimingPath>& paths,
                const std::string& path_type) {
  if (paths.empty()) {
    msg::Print_Result("No paths.");
    return;
  }
  if (path_type != "full") {
    PrintTable(report, paths, path_type == "end");
    return;
  }
  for (size_t i = 0; i < paths.size(); ++i) {
    if (i) msg::InsertEmptyLine();
    PrintLines(report.Full(paths[i]));
  }
}

class ReportTimingCmd : public CommonCmd {
 public:
  ReportTimingCmd() : CommonCmd("report_timing", "Report the worst timing paths", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("from", "Paths from these pins, ports, cells or clocks", false,
               ValueType::kStringList, std::any());
    addOptions("through",
               "Paths through these pins, ports, nets or cells (in order when given "
               "several times)",
               false, ValueType::kStringList, std::any());
    addOptions("to", "Paths to these pins, ports, cells or clocks", false, ValueType::kStringList,
               std::any());
    addOptions("delay_type", "max (setup, the default) or min (hold)", false, ValueType::kString,
               std::any());
    addOptions("max_paths", "Paths per path group (default 1)", false, ValueType::kInteger,
               std::any());
    addOptions("nworst", "Paths per endpoint (default 1)", false, ValueType::kInteger, std::any());
    addOptions("path_type", "full (the default), summary or end", false, ValueType::kString,
               std::any());
    addOptions("input_pins", "Show the input pins of cells", false, ValueType::kFlag, std::any());
    addOptions("nets", "Show the nets", false, ValueType::kFlag, std::any());
    addOptions("transition_time", "Show the transition time at each pin", false, ValueType::kFlag,
               std::any());
    addOptions("capacitance", "Show the load of each driving pin", false, ValueType::kFlag,
               std::any());
    addOptions("significant_digits", "Digits after the decimal point (0 to 13; default 2)", false,
               ValueType::kInteger, std::any());
    addOptions("group", "Only these path groups", false, ValueType::kStringList, std::any());
  }

  int exec() override;

 private:
  bool Integer(const char* option, int fallback, int low, int high, int& value);
  bool Text(const char* option, const std::string& fallback, std::vector<std::string> allowed,
            std::string& value);
  bool Point(const char* option, const std::vector<ObjectKind>& kinds, int use,
             sdc::ExceptionPoint& point);
  std::vector<std::string> Groups();
};

bool ReportTimingCmd::Integer(const char* option, int fallback, int low, int high, int& value) {
  boost::any any;
  value = getOptionValue(option, any) ? boost::any_cast<int>(any) : fallback;
  if (value >= low && value <= high) return true;
  SetTclError(name() + ": -" + option + " must lie between " + std::to_string(low) + " and " +
              std::to_string(high));
  return false;
}

bool ReportTimingCmd::Text(const char* option, const std::string& fallback,
                           std::vector<std::string> allowed, std::string& value) {
  boost::any any;
  value = getOptionValue(option, any) ? boost::any_cast<std::string>(any) : fallback;
  if (std::find(allowed.begin(), allowed.end(), value) != allowed.end()) return true;
  std::string list;
  for (const std::string& word : allowed) list += (list.empty() ? "" : ", ") + word;
  SetTclError(name() + ": -" + option + " must be one of " + list + ", not '" + value + "'");
  return false;
}

// The objects of one -from, -through or -to; false when the list names
// nothing (the report would cover other paths than asked for).
bool ReportTimingCmd::Point(const char* option, const std::vector<ObjectKind>& kinds, int use,
                            sdc::ExceptionPoint& point) {
  query::ObjectArgs args;
  std::string error;
  if (!query::ResolveOption(*this, option, kinds, query::MatchOptions{}, query::CurrentSeparator(),
                            args, error, use)) {
    SetTclError(name() + ": " + error);
    return false;
  }
  for (const std::string& unknown : args.unmatched)
    msg::ReportMsg(QUERY_001, query::KindsText(kinds).c_str(), unknown.c_str());
  for (const query::ObjectRef& ref : args.objects) point.objects.push_back(sdc::SdcObject::Of(ref));
  if (!point.objects.empty()) return true;
  SetTclError(name() + ": -" + option + " names no " + query::KindsText(kinds));
  return false;
}

std::vector<std::string> ReportTimingCmd::Groups() {
  boost::any any;
  if (!getOptionValue("group", any)) return {};
  return boost::any_cast<std::vector<std::string>>(any);
}

int ReportTimingCmd::exec() {
  int max_paths = 1;
  int nworst = 1;
  int digits = 2;
  std::string delay_type;
  std::string path_type;
  if (!Integer("max_paths", 1, 1, 1000000, max_paths) || !Integer("nworst", 1, 1, 1000, nworst) ||
      !Integer("significant_digits", 2, 0, 13, digits) ||
      !Text("delay_type", "max", {"max", "min"}, delay_type) ||
      !Text("path_type", "full", {"full", "summary", "end"}, path_type))
    return 1;
  Timer* timer = UpdatedTimer();
  if (!timer) {
    msg::Print_Result("report_timing: no linked current design to time.");
    return 1;
  }
  // -from, -through and -to run a search of their own.
  sdc::ExceptionPoint from;
  sdc::ExceptionPoint to;
  std::vector<sdc::ExceptionPoint> throughs(
      static_cast<size_t>(query::OptionUses(*this, "through")));
  const std::vector<ObjectKind> ends{ObjectKind::kPin, ObjectKind::kPort, ObjectKind::kCell,
                                     ObjectKind::kClock};
  PathFilterSpec filter;
  if (getOptionCount("from")) {
    if (!Point("from", ends, -1, from)) return 1;
    filter.from = &from;
  }
  for (size_t i = 0; i < throughs.size(); ++i) {
    if (!Point("through",
               {ObjectKind::kPin, ObjectKind::kPort, ObjectKind::kNet, ObjectKind::kCell},
               static_cast<int>(i), throughs[i]))
      return 1;
    filter.throughs.push_back(&throughs[i]);
  }
  if (getOptionCount("to")) {
    if (!Point("to", ends, -1, to)) return 1;
    filter.to = &to;
  }
  const std::vector<std::string> groups = Groups();
  for (const std::string& group : groups) {
    if (!IsPathGroupName(timer->Context().store, group)) {
      SetTclError("report_timing: -group names no path group: '" + group + "'");
      return 1;
    }
  }
  TimingSearch* search = &timer->Search();
  std::unique_ptr<TimingSearch> filtered;
  if (filter.from || filter.to || !filter.throughs.empty()) {
    filtered = std::make_unique<TimingSearch>();
    filtered->Run(timer->Context(), &filter);
    search = filtered.get();
  }
  PathReportOptions options;
  options.input_pins = getOptionValue("input_pins");
  options.nets = getOptionValue("nets");
  options.transition_time = getOptionValue("transition_time");
  options.capacitance = getOptionValue("capacitance");
  options.digits = digits;
  std::vector<std::string> header{"Report : timing", "        -path_type " + path_type,
                                  "        -delay_type " + delay_type};
  if (max_paths != 1) header.push_back("        -max_paths " + std::to_string(max_paths));
  if (nworst != 1) header.push_back("        -nworst " + std::to_string(nworst));
  PrintBanner(header);
  PathSelection selection;
  selection.setup = delay_type == "max";
  selection.groups = groups;
  selection.max_paths = max_paths;
  selection.nworst = nworst;
  const std::vector<TimingPath> paths = SelectPaths(*search, selection);
  PathReport report(*timer, *search, options);
  PrintPaths(report, paths, path_type);
  return 0;
}

cmdlib::HostCommandRegistrar registrar([] { new ReportTimingCmd(); });

}  // namespace
}  // namespace sta
