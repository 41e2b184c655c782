// create_clock, create_generated_clock, set_clock_uncertainty,
// set_clock_latency, set_clock_transition, set_propagated_clock and
// set_clock_groups.
#include <algorithm>
#include <cmath>

#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/msg/Msg.h"
#include "hostapi/sta/SdcMgr.h"
#include "sdc/SdcCommand.h"
#include "sdc/SdcSource.h"

namespace sta::sdc {
namespace {

using K = query::ObjectKind;

std::vector<Clock*> ClocksOf(const std::vector<query::ObjectRef>& objects) {
  std::vector<Clock*> clocks;
  for (const query::ObjectRef& ref : objects)
    if (ref.kind == K::kClock) clocks.push_back(static_cast<Clock*>(ref.object));
  return clocks;
}

// Without -add a new clock takes its sources from the clocks defined there
// before; a clock left without sources is removed.
void TakeSources(SdcStore& store, Clock* clock, const std::vector<cdm::Pin*>& sources,
                 const std::string& command) {
  std::vector<Clock*> emptied;
  for (Clock* other : store.Clocks()) {
    if (other == clock || other->isVirtual()) continue;
    std::vector<cdm::Pin*> kept;
    for (cdm::Pin* pin : other->getSources())
      if (std::find(sources.begin(), sources.end(), pin) == sources.end()) kept.push_back(pin);
    if (kept.size() == other->getSources().size()) continue;
    if (kept.empty())
      emptied.push_back(other);
    else
      store.SetClockSources(other, kept, other->isAdded());
  }
  for (Clock* other : emptied) {
    msg::HostMsg(SDC_007, {command, other->Name(), clock->Name()}, SdcSource::Where());
    store.RemoveClock(other);
  }
}

class CreateClockCmd : public SdcCommand {
 public:
  CreateClockCmd()
      : SdcCommand("create_clock", "Define a clock on ports or pins, or a virtual one") {
    Number("period", "Period");
    Text("name", "Clock name (default: the first source's name)");
    Numbers("waveform", "Rise and fall times within the period (default: 0 and half the period)");
    Flag("add", "Add to the clocks already defined on the sources");
    Text("comment", "A remark kept with the clock");
    Objects("source_objects", "Ports or pins the clock is defined on", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("period")) return false;
    const double period = NumberOf("period");
    // Kept in seconds as a float: a period too small for one is 0 there.
    if (!(period > 0.0) || !(Si(period, SdcUnits::kTime) > 0.0f))
      return Fail("the period must be above 0");
    std::vector<double> waveform =
        Has("waveform") ? NumbersOf("waveform") : std::vector<double>{0.0, period / 2.0};
    if (waveform.size() < 2 || waveform.size() % 2 != 0)
      return Fail("-waveform needs an even number of edge times, at least two");
    for (size_t i = 1; i < waveform.size(); ++i)
      if (waveform[i] < waveform[i - 1]) return Fail("-waveform times must not decrease");
    if (waveform.back() - waveform.front() > period)
      return Fail("-waveform spans more than one period");
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf("source_objects", {K::kPort, K::kPin}, objects)) return false;
    if (Has("source_objects") && objects.empty()) return true;  // warned: nothing to define on
    std::vector<cdm::Pin*> sources = PinsOf(objects);
    std::string name = TextOf("name");
    if (name.empty()) {
      if (sources.empty()) return Fail("-name is needed for a clock without sources");
      name = query::FullName(objects.front());
    }
    const bool add = Has("add");
    Clock* clock = store.MakeClock(name);
    std::vector<float> times;
    for (double time : waveform) times.push_back(Si(time, SdcUnits::kTime));
    store.SetClockWaveform(clock, Si(period, SdcUnits::kTime), std::move(times));
    if (!add) TakeSources(store, clock, sources, CommonCmd::name());
    store.SetClockSources(clock, sources, add);
    store.SetClockComment(clock, TextOf("comment"));
    return true;
  }
};

class CreateGeneratedClockCmd : public SdcCommand {
 public:
  CreateGeneratedClockCmd()
      : SdcCommand("create_generated_clock", "Define a clock derived from another one") {
    Text("name", "Clock name (default: the first source's name)");
    Objects("source", "The pin or port the master clock reaches");
    Objects("master_clock", "The master clock (default: the clock at -source)");
    Integer("divide_by", "Divide the master's frequency");
    Integer("multiply_by", "Multiply the master's frequency");
    Numbers("edges", "Master edges (from 1) that make the rise, fall and next rise");
    Numbers("edge_shift", "Shift of each of the -edges");
    Number("duty_cycle", "Duty cycle in percent, with -multiply_by");
    Flag("invert", "Invert the generated clock");
    Flag("combinational", "The source reaches through combinational logic only");
    Flag("add", "Add to the clocks already defined on the sources");
    Text("comment", "A remark kept with the clock");
    Objects("source_objects", "Ports or pins the clock is defined on", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("source") || !Need("source_objects")) return false;
    std::vector<query::ObjectRef> source_refs, objects, master_refs;
    if (!ObjectsOf("source", {K::kPin, K::kPort}, source_refs)) return false;
    if (!ObjectsOf("source_objects", {K::kPort, K::kPin}, objects)) return false;
    if (Has("master_clock") && !ObjectsOf("master_clock", {K::kClock}, master_refs)) return false;
    std::vector<cdm::Pin*> source_pins = PinsOf(source_refs);
    std::vector<cdm::Pin*> sources = PinsOf(objects);
    if (source_pins.empty() || sources.empty()) return true;  // warned
    const int divide_by = Has("divide_by") ? IntegerOf("divide_by") : 1;
    const int multiply_by = Has("multiply_by") ? IntegerOf("multiply_by") : 1;
    if (divide_by < 1 || multiply_by < 1)
      return Fail("-divide_by and -multiply_by must be 1 or more");
    if (Has("divide_by") && Has("multiply_by"))
      return Fail("-divide_by and -multiply_by cannot be used together");
    const Clock* master = master_refs.empty() ? nullptr : ClocksOf(master_refs).front();
    if (!master) {
      std::vector<Clock*> at_source = store.ClocksAt(source_pins.front());
      if (at_source.empty() && !Has("master_clock"))
        return Fail("no clock is defined at -source '" + source_pins.front()->GetFullName() +
                    "'; give -master_clock");
      if (!at_source.empty()) master = at_source.front();
    }
    if (!master) return true;  // -master_clock named no clock: warned
    std::string name = TextOf("name");
    if (name.empty()) name = query::FullName(objects.front());
    if (name == master->Name()) return Fail("a generated clock cannot be its own master");

    float period =
        master->getPeriod() * static_cast<float>(divide_by) / static_cast<float>(multiply_by);
    std::vector<float> waveform;
    for (float time : master->getWaveform())
      waveform.push_back(time * static_cast<float>(divide_by) / static_cast<float>(multiply_by));
    if (Has("edges")) {
      std::vector<double> edges = NumbersOf("edges");
      std::vector<double> shifts = NumbersOf("edge_shift");
      if (edges.size() != 3) return Fail("-edges needs three master edges");
      if (!shifts.empty() && shifts.size() != edges.size())
        return Fail("-edge_shift needs one shift per edge");
      const std::vector<float>& master_waves = master->getWaveform();
      auto edge_time = [&](double edge, size_t i) {
        const int k = static_cast<int>(edge);
        const int pairs = static_cast<int>(master_waves.size() / 2);
        const int index = (k - 1) % (2 * pairs);
        const int cycle = (k - 1) / (2 * pairs);
        double time = master_waves[static_cast<size_t>(index)] + cycle * master->getPeriod();
        if (!shifts.empty()) time += Si(shifts[i], SdcUnits::kTime);
        return static_cast<float>(time);
      };
      for (double edge : edges)
        if (edge < 1 || edge != std::floor(edge)) return Fail("-edges are counted from 1");
      waveform = {edge_time(edges[0], 0), edge_time(edges[1], 1)};
      period = edge_time(edges[2], 2) - waveform[0];
    } else if (Has("duty_cycle")) {
      const double duty = NumberOf("duty_cycle");
      if (!(duty > 0.0 && duty < 100.0)) return Fail("-duty_cycle must lie between 0 and 100");
      waveform = {0.0f, static_cast<float>(period * duty / 100.0)};
    }
    if (Has("invert") && waveform.size() >= 2) waveform = {waveform[1], waveform[0] + period};
    Clock* clock = store.MakeClock(name);
    store.SetClockWaveform(clock, period, std::move(waveform));
    if (!Has("add")) TakeSources(store, clock, sources, CommonCmd::name());
    store.SetClockSources(clock, sources, Has("add"));
    store.SetGeneratedClock(clock, source_pins.front(), master, divide_by, multiply_by,
                            Has("invert"));
    std::vector<int> edges;
    for (double edge : NumbersOf("edges")) edges.push_back(static_cast<int>(edge));
    std::vector<float> shifts;
    for (double shift : NumbersOf("edge_shift")) shifts.push_back(Si(shift, SdcUnits::kTime));
    store.SetGeneratedShape(clock, std::move(edges), std::move(shifts),
                            static_cast<float>(NumberOf("duty_cycle")), Has("combinational"));
    store.SetClockComment(clock, TextOf("comment"));
    return true;
  }
};

class SetClockUncertaintyCmd : public SdcCommand {
 public:
  SetClockUncertaintyCmd()
      : SdcCommand("set_clock_uncertainty", "Set the uncertainty of clocks, or between clocks") {
    Number("uncertainty", "Uncertainty", true);
    Flag("setup", "For setup checks only");
    Flag("hold", "For hold checks only");
    Objects("from", "Launching clocks (with -to)");
    Objects("rise_from", "Launching clocks, rising edge");
    Objects("fall_from", "Launching clocks, falling edge");
    Objects("to", "Capturing clocks (with -from)");
    Objects("rise_to", "Capturing clocks, rising edge");
    Objects("fall_to", "Capturing clocks, falling edge");
    Objects("object_list", "Clocks or pins", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("uncertainty")) return false;
    const float value = Si(NumberOf("uncertainty"), SdcUnits::kTime);
    const MinMaxAll which = Which("hold", "setup");
    const char* from_option = Has("rise_from")   ? "rise_from"
                              : Has("fall_from") ? "fall_from"
                                                 : "from";
    const char* to_option = Has("rise_to") ? "rise_to" : Has("fall_to") ? "fall_to" : "to";
    if (Has(from_option) || Has(to_option)) {
      if (!Has(from_option) || !Has(to_option))
        return Fail("inter-clock uncertainty needs both a -from and a -to option");
      if (Has("object_list")) return Fail("-from/-to and an object list exclude each other");
      std::vector<query::ObjectRef> from, to;
      if (!ObjectsOf(from_option, {K::kClock}, from) || !ObjectsOf(to_option, {K::kClock}, to))
        return false;
      auto edges = [](const std::string& option) {
        return option.rfind("rise", 0) == 0   ? cdm::RiseFallBoth::rise_
               : option.rfind("fall", 0) == 0 ? cdm::RiseFallBoth::fall_
                                              : cdm::RiseFallBoth::rise_fall_;
      };
      for (Clock* a : ClocksOf(from)) {
        for (Clock* b : ClocksOf(to)) {
          InterClockUncertainty* entry = nullptr;
          for (InterClockUncertainty& each : store.InterClockUncertainties())
            if (each.from == a && each.to == b && each.from_edges == edges(from_option) &&
                each.to_edges == edges(to_option))
              entry = &each;
          if (!entry) {
            store.InterClockUncertainties().push_back(
                {a, b, edges(from_option), edges(to_option), {}});
            entry = &store.InterClockUncertainties().back();
          }
          for (const cdm::MinMax* mm : {cdm::MinMax::min_, cdm::MinMax::max_})
            if (Covers(which, mm)) entry->value[mm->index()] = value;
        }
      }
      store.NoteChange();
      return true;
    }
    if (!Need("object_list")) return false;
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf("object_list", {K::kClock, K::kPort, K::kPin}, objects)) return false;
    for (Clock* clock : ClocksOf(objects)) store.SetClockUncertainty(clock, which, value);
    for (cdm::Pin* pin : PinsOf(objects)) {
      PinConstraints& record = store.Pin(pin);
      for (const cdm::MinMax* mm : {cdm::MinMax::min_, cdm::MinMax::max_})
        if (Covers(which, mm)) record.clock_uncertainty[mm->index()] = value;
    }
    store.NoteChange();
    return true;
  }
};

class SetClockLatencyCmd : public SdcCommand {
 public:
  SetClockLatencyCmd()
      : SdcCommand("set_clock_latency", "Set the source or network latency of clocks") {
    Number("delay", "Latency", true);
    Flag("source", "Source latency (default: network latency)");
    EdgeFlags("latency");
    MinMaxFlags("latency");
    Flag("early", "Early source latency (as -min)");
    Flag("late", "Late source latency (as -max)");
    Objects("clock", "Accepted: the latency at a pin applies to every clock there");
    Objects("object_list", "Clocks, ports or pins", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("delay") || !Need("object_list")) return false;
    const float value = Si(NumberOf("delay"), SdcUnits::kTime);
    const bool source = Has("source");
    MinMaxAll which = Which();
    if (Has("early") != Has("late")) which = Has("early") ? MinMaxAll::kMin : MinMaxAll::kMax;
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf("object_list", {K::kClock, K::kPort, K::kPin}, objects)) return false;
    for (Clock* clock : ClocksOf(objects))
      store.SetClockLatency(clock, source, Edges(), which, value);
    for (cdm::Pin* pin : PinsOf(objects)) {
      cdm::RiseFallMinMax& values = store.Pin(pin).clock_latency[source ? 1 : 0];
      for (const cdm::RiseFall* rf : splitRiseFall(Edges()))
        for (const cdm::MinMax* mm : {cdm::MinMax::min_, cdm::MinMax::max_})
          if (Covers(which, mm)) values.setValue(rf, mm, value);
    }
    store.NoteChange();
    return true;
  }
};

class SetClockTransitionCmd : public SdcCommand {
 public:
  SetClockTransitionCmd()
      : SdcCommand("set_clock_transition", "Set the transition of ideal clocks at their sinks") {
    Number("transition", "Transition", true);
    EdgeFlags("transition");
    MinMaxFlags("transition");
    Objects("clock_list", "Clocks", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("transition") || !Need("clock_list")) return false;
    if (NumberOf("transition") < 0.0) return Fail("the transition must not be negative");
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf("clock_list", {K::kClock}, objects)) return false;
    for (Clock* clock : ClocksOf(objects))
      store.SetClockTransition(clock, Edges(), Which(),
                               Si(NumberOf("transition"), SdcUnits::kTime));
    return true;
  }
};

class SetPropagatedClockCmd : public SdcCommand {
 public:
  SetPropagatedClockCmd()
      : SdcCommand("set_propagated_clock",
                   "Time clocks through their networks rather than as ideal") {
    Objects("object_list", "Clocks, or ports and pins clocks are defined on", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("object_list")) return false;
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf("object_list", {K::kClock, K::kPort, K::kPin}, objects)) return false;
    for (Clock* clock : ClocksOf(objects)) store.SetClockPropagated(clock, true);
    for (cdm::Pin* pin : PinsOf(objects)) {
      store.Pin(pin).propagated_clock = true;
      for (Clock* clock : store.ClocksAt(pin)) store.SetClockPropagated(clock, true);
    }
    store.NoteChange();
    return true;
  }
};

class SetClockGroupsCmd : public SdcCommand {
 public:
  SetClockGroupsCmd()
      : SdcCommand("set_clock_groups",
                   "Declare groups of clocks with no paths timed between them") {
    Text("name", "Name of the declaration");
    Flag("logically_exclusive", "The groups are never active together");
    Flag("physically_exclusive", "The groups never exist together");
    Flag("asynchronous", "The groups are asynchronous to each other");
    Flag("allow_paths", "Time the paths all the same (asynchronous only)");
    Objects("group", "Clocks of one group (give -group once per group)");
    Text("comment", "A remark kept with the declaration");
  }

 protected:
  bool Run(SdcStore& store) override {
    const int kinds =
        Has("logically_exclusive") + Has("physically_exclusive") + Has("asynchronous");
    if (kinds != 1)
      return Fail(
          "give exactly one of -logically_exclusive, -physically_exclusive and -asynchronous");
    if (!Need("group")) return false;
    ClockGroups groups;
    groups.name = TextOf("name");
    groups.kind = Has("logically_exclusive")    ? ClockGroups::Kind::kLogicallyExclusive
                  : Has("physically_exclusive") ? ClockGroups::Kind::kPhysicallyExclusive
                                                : ClockGroups::Kind::kAsynchronous;
    groups.allow_paths = Has("allow_paths");
    groups.comment = TextOf("comment");
    const int uses = getOptionCount("group");
    for (int use = 0; use < uses; ++use) {
      std::vector<query::ObjectRef> objects;
      if (!ObjectsOf("group", {K::kClock}, objects, use)) return false;
      groups.groups.push_back(ClocksOf(objects));
    }
    if (groups.name.empty())
      groups.name = "group_" + std::to_string(store.ClockGroupList().size() + 1);
    auto& list = store.ClockGroupList();
    list.erase(std::remove_if(list.begin(), list.end(),
                              [&](const ClockGroups& each) { return each.name == groups.name; }),
               list.end());
    list.push_back(std::move(groups));
    store.NoteChange();
    return true;
  }
};

cmdlib::HostCommandRegistrar registrar([] {
  new CreateClockCmd();
  new CreateGeneratedClockCmd();
  new SetClockUncertaintyCmd();
  new SetClockLatencyCmd();
  new SetClockTransitionCmd();
  new SetPropagatedClockCmd();
  new SetClockGroupsCmd();
});

}  // namespace
}  // namespace sta::sdc
