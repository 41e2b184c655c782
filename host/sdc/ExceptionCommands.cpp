// set_false_path, set_multicycle_path, set_max_delay, set_min_delay,
// group_path and set_disable_timing.
#include <algorithm>
#include <cmath>

#include "cmdlib/CommandState.h"
#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "sdc/SdcCommand.h"

namespace sta::sdc {
namespace {

using K = query::ObjectKind;
using Type = PathException::Type;

const std::vector<K> kEnds = {K::kClock, K::kPort, K::kPin, K::kCell};
const std::vector<K> kThroughs = {K::kPort, K::kPin, K::kNet, K::kCell};

class ExceptionCmd : public SdcCommand {
 public:
  ExceptionCmd(const char* name, const char* description, Type type)
      : SdcCommand(name, description), type_(type) {
    if (type == Type::kMulticyclePath) Number("path_multiplier", "Number of cycles", true);
    if (type == Type::kMaxDelay || type == Type::kMinDelay) {
      Number("delay_value", "Delay", true);
      Flag("ignore_clock_latency", "Leave clock latency out of the delay");
    }
    if (type == Type::kGroupPath) {
      Text("name", "The path group");
      Flag("default", "Back to the default path group");
      Number("weight", "Weight of the group");
      Number("critical_range", "Accepted: the critical range of the group");
    }
    if (type == Type::kFalsePath || type == Type::kMulticyclePath) {
      Flag("setup", "For setup checks only");
      Flag("hold", "For hold checks only");
    }
    if (type == Type::kMulticyclePath) {
      Flag("start", "Count cycles of the launching clock");
      Flag("end", "Count cycles of the capturing clock");
    }
    if (type != Type::kGroupPath) {
      Flag("rise", "Paths ending with a rising transition");
      Flag("fall", "Paths ending with a falling transition");
    }
    Objects("from", "Start points: clocks, ports, pins or cells");
    Objects("rise_from", "Start points, rising transition");
    Objects("fall_from", "Start points, falling transition");
    Objects("through", "Points passed, in order of the options: ports, pins, nets or cells");
    Objects("rise_through", "Points passed with a rising transition");
    Objects("fall_through", "Points passed with a falling transition");
    Objects("to", "End points: clocks, ports, pins or cells");
    Objects("rise_to", "End points, rising transition");
    Objects("fall_to", "End points, falling transition");
    Text("comment", "A remark kept with the exception");
  }

 protected:
  bool Run(SdcStore& store) override {
    PathException exception;
    exception.type = type_;
    exception.comment = TextOf("comment");
    if (type_ == Type::kMulticyclePath) {
      if (!Need("path_multiplier")) return false;
      const double cycles = NumberOf("path_multiplier");
      if (cycles < 0.0 || cycles != std::floor(cycles))
        return Fail("the path multiplier must be a whole number of cycles, 0 or more");
      exception.value = static_cast<float>(cycles);
      exception.start = Has("start");
      exception.end = Has("end");
      if (exception.start && exception.end) return Fail("-start and -end exclude each other");
    }
    if (type_ == Type::kMaxDelay || type_ == Type::kMinDelay) {
      if (!Need("delay_value")) return false;
      exception.value = Si(NumberOf("delay_value"), SdcUnits::kTime);
      exception.ignore_clock_latency = Has("ignore_clock_latency");
    }
    if (type_ == Type::kGroupPath) {
      if (Has("name") == Has("default")) return Fail("give either -name or -default");
      exception.group = TextOf("name");
      exception.group_default = Has("default");
      exception.weight = Has("weight") ? static_cast<float>(NumberOf("weight")) : 1.0f;
    }
    if (type_ == Type::kFalsePath || type_ == Type::kMulticyclePath) {
      exception.setup = Has("setup") || !Has("hold");
      exception.hold = Has("hold") || !Has("setup");
    }
    bool empty = false;
    if (!Point("from", "rise_from", "fall_from", kEnds, exception.from, empty)) return false;
    if (!Throughs(exception.throughs, empty)) return false;
    if (!Point("to", "rise_to", "fall_to", kEnds, exception.to, empty)) return false;
    if (empty)
      return true;  // warned: a list named nothing, and without it the exception would widen
    // Before -rise/-fall make an end point of their own: alone they would
    // cover every path.
    if (type_ != Type::kGroupPath && !exception.from && exception.throughs.empty() && !exception.to)
      return Fail("give at least one of -from, -through and -to");
    if (type_ != Type::kGroupPath && (Has("rise") || Has("fall"))) {
      if (!exception.to) exception.to = ExceptionPoint{};
      if (exception.to->edges != cdm::RiseFallBoth::rise_fall_)
        return Fail("-rise/-fall and -rise_to/-fall_to exclude each other");
      exception.to->edges = Edges();
    }
    auto& list = store.Exceptions();
    auto same = std::find_if(list.begin(), list.end(),
                             [&](const PathException& each) { return each.SamePaths(exception); });
    if (same != list.end())
      *same = std::move(exception);
    else
      list.push_back(std::move(exception));
    store.NoteChange();
    return true;
  }

 private:
  // One of -from, -rise_from and -fall_from (or the -to ones).
  bool Point(const char* both, const char* rise, const char* fall, const std::vector<K>& kinds,
             std::optional<ExceptionPoint>& point, bool& empty) {
    const int given = Has(both) + Has(rise) + Has(fall);
    if (given == 0) return true;
    if (given > 1)
      return Fail(std::string("-") + both + ", -" + rise + " and -" + fall + " exclude each other");
    const char* option = Has(both) ? both : Has(rise) ? rise : fall;
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf(option, kinds, objects)) return false;
    if (objects.empty()) empty = true;
    point = ExceptionPoint{};
    for (const query::ObjectRef& ref : objects) point->objects.push_back(SdcObject::Of(ref));
    point->edges = option == rise   ? cdm::RiseFallBoth::rise_
                   : option == fall ? cdm::RiseFallBoth::fall_
                                    : cdm::RiseFallBoth::rise_fall_;
    return true;
  }

  // Every use of -through, -rise_through and -fall_through, in the order
  // given on the command line.
  bool Throughs(std::vector<ExceptionPoint>& throughs, bool& empty) {
    struct Use {
      size_t position;
      const char* option;
      int use;
      const cdm::RiseFallBoth* edges;
    };
    std::vector<Use> uses;
    const std::pair<const char*, const cdm::RiseFallBoth*> options[] = {
        {"through", cdm::RiseFallBoth::rise_fall_},
        {"rise_through", cdm::RiseFallBoth::rise_},
        {"fall_through", cdm::RiseFallBoth::fall_}};
    for (const auto& [option, edges] : options) {
      auto found = state().parsed.find(option);
      if (found == state().parsed.end()) continue;
      for (size_t i = 0; i < found->second.arg_indices.size(); ++i)
        uses.push_back({found->second.arg_indices[i], option, static_cast<int>(i), edges});
    }
    std::sort(uses.begin(), uses.end(),
              [](const Use& a, const Use& b) { return a.position < b.position; });
    for (const Use& use : uses) {
      std::vector<query::ObjectRef> objects;
      if (!ObjectsOf(use.option, kThroughs, objects, use.use)) return false;
      if (objects.empty()) empty = true;
      ExceptionPoint point;
      point.edges = use.edges;
      for (const query::ObjectRef& ref : objects) point.objects.push_back(SdcObject::Of(ref));
      throughs.push_back(std::move(point));
    }
    return true;
  }

  Type type_;
};

class SetDisableTimingCmd : public SdcCommand {
 public:
  SetDisableTimingCmd()
      : SdcCommand("set_disable_timing", "Cut the timing arcs of cells, pins or library cells") {
    Text("from", "Input pin of the cell's library cell the cut arcs start at");
    Text("to", "Output pin of the cell's library cell the cut arcs end at");
    Objects("object_list", "Cells, ports, pins, library cells or library pins", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("object_list")) return false;
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf("object_list", {K::kCell, K::kPort, K::kPin, K::kLibCell, K::kLibPin}, objects))
      return false;
    const std::string from = TextOf("from"), to = TextOf("to");
    for (const query::ObjectRef& ref : objects) {
      if (!from.empty() || !to.empty()) {
        const cdm::LibCell* lib_cell =
            ref.kind == K::kCell      ? static_cast<cdm::Cell*>(ref.object)->GetRefLibCell()
            : ref.kind == K::kLibCell ? static_cast<cdm::LibCell*>(ref.object)
                                      : nullptr;
        if (!lib_cell) return Fail("-from and -to need cells or library cells");
        for (const std::string& pin : {from, to}) {
          if (!pin.empty() && !lib_cell->FindPort(pin)) {
            WarnUnknown("pin of " + lib_cell->Name(), pin);
            return true;
          }
        }
      }
      DisabledTiming disabled{SdcObject::Of(ref), from, to};
      auto& list = store.Disabled();
      const bool known = std::any_of(list.begin(), list.end(), [&](const DisabledTiming& each) {
        return each.object == disabled.object && each.from == from && each.to == to;
      });
      if (!known) list.push_back(std::move(disabled));
    }
    store.NoteChange();
    return true;
  }
};

cmdlib::HostCommandRegistrar registrar([] {
  new ExceptionCmd("set_false_path", "Leave paths out of timing", Type::kFalsePath);
  new ExceptionCmd("set_multicycle_path", "Give paths more than one clock cycle",
                   Type::kMulticyclePath);
  new ExceptionCmd("set_max_delay", "Set the largest delay of paths", Type::kMaxDelay);
  new ExceptionCmd("set_min_delay", "Set the smallest delay of paths", Type::kMinDelay);
  new ExceptionCmd("group_path", "Put paths into a path group", Type::kGroupPath);
  new SetDisableTimingCmd();
});

}  // namespace
}  // namespace sta::sdc
