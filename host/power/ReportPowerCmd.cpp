// report_power: the power of the current design by group, and on request
// of instances (-cell), nets (-net) and each level of the hierarchy.
#include <boost/any.hpp>
#include <map>
#include <string>
#include <unordered_set>
#include <vector>

#include "cmdlib/HostCommands.h"
#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/PowerTables.h"
#include "hostapi/cmd/CommonCmd.h"
#include "hostapi/msg/Msg.h"
#include "hostapi/sta/Sta.h"
#include "hostapi/sta/TimerMgr.h"
#include "power/ActivityStore.h"
#include "power/PowerActivitySource.h"
#include "power/PowerAnalysis.h"
#include "query/ObjectArgs.h"
#include "search/Timer.h"

namespace {

using query::ObjectKind;
using query::ObjectRef;

// The module's tables at the digits of this call.
struct Tables {
  cdm::PowerTables* tables;
  int digits;
  void PrintPowerInfo(cdm::PowerResult total, cdm::PowerResult sequential,
                      cdm::PowerResult combinational, cdm::PowerResult macro,
                      cdm::PowerResult pad) {
    tables->PrintPowerInfo(digits, total, sequential, combinational, macro, pad);
  }
  void PrintInstsPowerInfo(const std::map<const cdm::Cell*, cdm::PowerResult>& cells) {
    tables->PrintInstsPowerInfo(digits, cells);
  }
  void PrintNetsPowerInfo(const std::map<const cdm::Net*, cdm::SwitchPowerRecord>& nets) {
    tables->PrintNetsPowerInfo(digits, nets);
  }
};

class ReportPowerCmd : public CommonCmd {
 public:
  ReportPowerCmd()
      : CommonCmd("report_power", "Report the power of the design, its instances and nets",
                  nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("cell", "The power of each instance (of those given, else of every leaf)", false,
               ValueType::kFlag, std::any());
    addOptions("net", "The switching power of each net (of those given, else of every driven net)",
               false, ValueType::kFlag, std::any());
    addOptions("hierarchy", "A table of the instances inside each hierarchical instance", false,
               ValueType::kFlag, std::any());
    addOptions("significant_digits", "Digits of the numbers (default 3)", false,
               ValueType::kInteger, std::any());
    addOptions("objects", "Instances and nets for -cell and -net", true, ValueType::kStringList,
               std::any());
  }

  int exec() override {
    cdm::Design* design = cdm::DbManager::GetCurrentDesign();
    if (!design) {
      msg::Print_Result("Current Design is not Define");
      return 1;
    }
    int digits = 3;
    boost::any value;
    if (getOptionValue("significant_digits", value)) {
      digits = boost::any_cast<int>(value);
      if (digits < 1 || digits > 9) {
        SetTclError("report_power: -significant_digits must be from 1 to 9");
        return 1;
      }
    }
    std::vector<const cdm::Cell*> cells;
    std::vector<const cdm::Net*> nets;
    if (!Objects(cells, nets)) return 1;
    const bool by_cell = getOptionValue("cell");
    const bool by_net = getOptionValue("net");
    if ((!cells.empty() && !by_cell) || (!nets.empty() && !by_net)) {
      SetTclError("report_power: instances go with -cell and nets with -net");
      return 1;
    }

    // The store brings the timing it rests on up to date too.
    power::ActivityStore& store = power::ActivityStore::Current();
    sta::Sta* sta = TimerMgr::getInstance()->getSta("");
    if (!store.Update() || !sta || !sta->timer() || !sta->timer()->Graph()) {
      SetTclError("report_power: the design cannot be timed (is it linked?)");
      return 1;
    }
    const sta::Timer& timer = *sta->timer();
    power::PowerAnalysis analysis(timer, power::DesignActivity(store));
    analysis.Run(by_net);

    cdm::PowerTables* tables = cdm::GetPowerTables();
    if (!tables) {
      SetTclError("report_power: the report module is not loaded");
      return 1;
    }
    Tables report{tables, digits};
    report.PrintPowerInfo(analysis.Total(), analysis.GroupPower(power::PowerAnalysis::kSequential),
                          analysis.GroupPower(power::PowerAnalysis::kCombinational),
                          analysis.GroupPower(power::PowerAnalysis::kMacro),
                          analysis.GroupPower(power::PowerAnalysis::kPad));
    if (by_cell) PrintCells(report, analysis, design, cells);
    if (by_net) PrintNets(report, analysis, design, nets);
    if (getOptionValue("hierarchy")) PrintHierarchy(report, analysis, design);
    return 0;
  }

 private:
  // The instances and nets named; false (with the Tcl error set) for a
  // name that matches neither.
  bool Objects(std::vector<const cdm::Cell*>& cells, std::vector<const cdm::Net*>& nets) {
    query::ObjectArgs args;
    std::string error;
    if (!query::ResolveOption(*this, "objects", {ObjectKind::kCell, ObjectKind::kNet},
                              query::MatchOptions{}, query::CurrentSeparator(), args, error)) {
      SetTclError("report_power: " + error);
      return false;
    }
    if (!args.unmatched.empty()) {
      SetTclError("report_power: no instance or net matches '" + args.unmatched.front() + "'");
      return false;
    }
    if (!args.wrong_kind.empty()) {
      SetTclError("report_power: '" + query::FullName(args.wrong_kind.front()) +
                  "' is neither an instance nor a net");
      return false;
    }
    for (const ObjectRef& ref : args.objects) {
      if (ref.kind == ObjectKind::kCell)
        cells.push_back(static_cast<const cdm::Cell*>(ref.object));
      else
        nets.push_back(static_cast<const cdm::Net*>(ref.object));
    }
    return true;
  }

  static void LeafCells(const cdm::Netlist* netlist, std::vector<const cdm::Cell*>& cells) {
    for (const cdm::Cell& cell : netlist->Cells()) {
      if (cell.IsLeaf())
        cells.push_back(&cell);
      else if (const cdm::Netlist* child = cell.GetChildNetlist())
        LeafCells(child, cells);
    }
  }

  static void PrintCells(Tables& report, const power::PowerAnalysis& analysis,
                         const cdm::Design* design, std::vector<const cdm::Cell*> cells) {
    if (cells.empty()) LeafCells(design->GetNetlist(), cells);
    std::map<const cdm::Cell*, cdm::PowerResult> table;
    for (const cdm::Cell* cell : cells) table[cell] = analysis.InstancePower(cell);
    report.PrintInstsPowerInfo(table);
  }

  static void PrintNets(Tables& report, const power::PowerAnalysis& analysis,
                        const cdm::Design* design, std::vector<const cdm::Net*> nets) {
    if (nets.empty()) {
      // Every flat net once, by the first of its names met from the top.
      std::unordered_set<uint32_t> seen;
      std::vector<const cdm::Netlist*> netlists = {design->GetNetlist()};
      for (size_t i = 0; i < netlists.size(); ++i) {
        for (const cdm::Net& net : netlists[i]->Nets())
          if (seen.insert(net.FlatNetId()).second) nets.push_back(&net);
        for (const cdm::Cell& cell : netlists[i]->Cells())
          if (const cdm::Netlist* child = cell.GetChildNetlist()) netlists.push_back(child);
      }
    }
    std::map<const cdm::Net*, cdm::SwitchPowerRecord> table;
    for (const cdm::Net* net : nets) {
      cdm::SwitchPowerRecord record;
      if (!analysis.NetRecord(net, record)) continue;
      table[net] = record;
    }
    report.PrintNetsPowerInfo(table);
  }

  // A table per hierarchical instance, top first, of the cells directly in
  // it (a hierarchical one with the sum of what lies below it).
  static void PrintHierarchy(Tables& report, const power::PowerAnalysis& analysis,
                             const cdm::Design* design) {
    std::vector<std::pair<std::string, const cdm::Netlist*>> levels = {
        {design->Name(), design->GetNetlist()}};
    for (size_t i = 0; i < levels.size(); ++i) {
      const cdm::Netlist* netlist = levels[i].second;
      std::map<const cdm::Cell*, cdm::PowerResult> table;
      std::vector<std::pair<std::string, const cdm::Netlist*>> below;
      for (const cdm::Cell& cell : netlist->Cells()) {
        table[&cell] = analysis.InstancePower(&cell);
        if (const cdm::Netlist* child = cell.GetChildNetlist())
          below.emplace_back(cell.GetFullName(), child);
      }
      msg::InsertEmptyLine();
      msg::Print_Result("Hierarchy: %s", levels[i].first.c_str());
      report.PrintInstsPowerInfo(table);
      levels.insert(levels.begin() + static_cast<long>(i) + 1, below.begin(), below.end());
    }
  }
};

cmdlib::HostCommandRegistrar registrar([] { new ReportPowerCmd(); });

}  // namespace
