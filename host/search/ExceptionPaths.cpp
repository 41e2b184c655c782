#include "search/ExceptionPaths.h"

#include <algorithm>

#include "db/FlatNet.h"
#include "graph/GraphBuilder.h"
#include "graph/TimingGraph.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/sta/Clock.h"
#include "sdc/SdcStore.h"

namespace sta {
namespace {

using Kind = CompiledException::Kind;

enum class Role { kFrom, kThrough, kTo };

void AddPinVertices(const cdm::Pin* pin, std::vector<uint32_t>& vertices) {
  if (!pin || pin->GetVertexId() == 0) return;
  vertices.push_back(DriverVertex(pin));
  if (LoadVertex(pin) != DriverVertex(pin)) vertices.push_back(LoadVertex(pin));
}

// The vertices and clocks an exception list names.
PathPoint Compile(const sdc::ExceptionPoint& point, const std::vector<sdc::Clock*>& clocks,
                  const cdm::Design* design, Role role) {
  PathPoint result;
  result.present = true;
  result.edges =
      static_cast<uint8_t>((point.edges->HasRise() ? 1 : 0) | (point.edges->HasFall() ? 2 : 0));
  for (const sdc::SdcObject& object : point.objects) {
    void* target = object.ref.object;
    if (!target) continue;
    switch (object.ref.kind) {
      case query::ObjectKind::kPin:
        AddPinVertices(static_cast<const cdm::Pin*>(target), result.vertices);
        break;
      case query::ObjectKind::kPort:
        if (design)
          AddPinVertices(design->FindPin(static_cast<const cdm::Port*>(target)->Name()),
                         result.vertices);
        break;
      case query::ObjectKind::kCell: {
        const cdm::Cell* cell = static_cast<const cdm::Cell*>(target);
        for (uint32_t i = 0; i < cell->PinCount(); ++i)
          AddPinVertices(cell->GetPin(i), result.vertices);
        break;
      }
      case query::ObjectKind::kNet: {
        const cdm::Net* net = static_cast<const cdm::Net*>(target);
        std::vector<const cdm::Pin*> pins;
        if (role == Role::kFrom) {
          net->GetFaninPins(pins, cdm::kHierFlat);
        } else {
          net->GetFanoutPins(pins, cdm::kHierFlat);
        }
        for (const cdm::Pin* pin : pins) AddPinVertices(pin, result.vertices);
        break;
      }
      case query::ObjectKind::kClock:
        for (size_t c = 0; c < clocks.size(); ++c)
          if (clocks[c] == target) result.clocks.push_back(static_cast<int>(c));
        break;
      default:
        break;
    }
  }
  std::sort(result.vertices.begin(), result.vertices.end());
  result.vertices.erase(std::unique(result.vertices.begin(), result.vertices.end()),
                        result.vertices.end());
  return result;
}

// How closely an exception names its paths: pins before clocks, and
// -throughs count; the closer one wins among exceptions of a kind.
int Specificity(const CompiledException& exception) {
  auto score = [](const PathPoint& point) {
    if (!point.present) return 0;
    return point.vertices.empty() ? 1 : 2;
  };
  return score(exception.from) * 4 + score(exception.to) * 2 + (exception.throughs.empty() ? 0 : 1);
}

int Rank(Kind kind) {
  switch (kind) {
    case Kind::kFalsePath:
      return 3;
    case Kind::kMaxDelay:
    case Kind::kMinDelay:
      return 2;
    case Kind::kMulticycle:
      return 1;
    default:
      return 0;
  }
}

}  // namespace

bool PathPoint::HasVertex(uint32_t vertex) const {
  return std::binary_search(vertices.begin(), vertices.end(), vertex);
}

bool PathPoint::HasClock(int clock) const {
  return std::find(clocks.begin(), clocks.end(), clock) != clocks.end();
}

void ExceptionPaths::Build(const TimingGraph& graph, sdc::SdcStore* store,
                           const std::vector<sdc::Clock*>& clocks, const PathFilterSpec* filter) {
  (void)graph;
  exceptions_.clear();
  filter_ = -1;
  from_at_.clear();
  through_at_.clear();
  clock_from_.clear();
  sets_.assign(1, {});
  set_index_.clear();
  set_index_.emplace(std::vector<uint32_t>(), 0);
  advance_cache_.clear();
  const cdm::Design* design = store ? store->GetDesign() : nullptr;
  if (store) {
    for (const sdc::PathException& source : store->Exceptions()) {
      CompiledException exception;
      switch (source.type) {
        case sdc::PathException::Type::kFalsePath:
          exception.kind = Kind::kFalsePath;
          break;
        case sdc::PathException::Type::kMulticyclePath:
          exception.kind = Kind::kMulticycle;
          break;
        case sdc::PathException::Type::kMaxDelay:
          exception.kind = Kind::kMaxDelay;
          break;
        case sdc::PathException::Type::kMinDelay:
          exception.kind = Kind::kMinDelay;
          break;
        case sdc::PathException::Type::kGroupPath:
          exception.kind = Kind::kGroupPath;
          break;
      }
      if (source.from) exception.from = Compile(*source.from, clocks, design, Role::kFrom);
      for (const sdc::ExceptionPoint& through : source.throughs)
        exception.throughs.push_back(Compile(through, clocks, design, Role::kThrough));
      if (source.to) exception.to = Compile(*source.to, clocks, design, Role::kTo);
      exception.setup = source.setup;
      exception.hold = source.hold;
      if (exception.kind == Kind::kMaxDelay) exception.hold = false;
      if (exception.kind == Kind::kMinDelay) exception.setup = false;
      exception.start = source.start;
      exception.end = source.end;
      exception.value = source.value;
      exception.ignore_clock_latency = source.ignore_clock_latency;
      exception.group = source.group_default ? std::string() : source.group;
      Add(std::move(exception));
    }
    AddClockGroups(*store, clocks);
  }
  if (filter) {
    CompiledException exception;
    exception.kind = Kind::kFilter;
    if (filter->from) exception.from = Compile(*filter->from, clocks, design, Role::kFrom);
    for (const sdc::ExceptionPoint* through : filter->throughs)
      exception.throughs.push_back(Compile(*through, clocks, design, Role::kThrough));
    if (filter->to) exception.to = Compile(*filter->to, clocks, design, Role::kTo);
    filter_ = static_cast<int>(exceptions_.size());
    Add(std::move(exception));
  }
}

void ExceptionPaths::AddClockGroups(sdc::SdcStore& store, const std::vector<sdc::Clock*>& clocks) {
  auto numbers = [&](const std::vector<sdc::Clock*>& group) {
    std::vector<int> result;
    for (const sdc::Clock* clock : group)
      for (size_t c = 0; c < clocks.size(); ++c)
        if (clocks[c] == clock) result.push_back(static_cast<int>(c));
    return result;
  };
  for (const sdc::ClockGroups& groups : store.ClockGroupList()) {
    std::vector<std::vector<int>> members;
    for (const std::vector<sdc::Clock*>& group : groups.groups) members.push_back(numbers(group));
    if (members.size() == 1) {
      // One group: it is apart from every other clock.
      std::vector<int> others;
      for (size_t c = 0; c < clocks.size(); ++c)
        if (std::find(members[0].begin(), members[0].end(), static_cast<int>(c)) ==
            members[0].end())
          others.push_back(static_cast<int>(c));
      members.push_back(others);
    }
    for (size_t i = 0; i < members.size(); ++i) {
      for (size_t j = 0; j < members.size(); ++j) {
        if (i == j || members[i].empty() || members[j].empty()) continue;
        CompiledException exception;
        exception.kind = Kind::kFalsePath;
        exception.from.present = true;
        exception.from.clocks = members[i];
        exception.to.present = true;
        exception.to.clocks = members[j];
        Add(std::move(exception));
      }
    }
  }
}

void ExceptionPaths::Add(CompiledException exception) {
  const int index = static_cast<int>(exceptions_.size());
  exception.order = index;
  exception.specificity = Specificity(exception);
  exception.tracked = !exception.throughs.empty() || !exception.from.vertices.empty();
  if (exception.tracked) {
    for (uint32_t v : exception.from.vertices) from_at_[v].push_back(static_cast<uint32_t>(index));
    if (!exception.from.clocks.empty()) clock_from_.push_back(index);
    for (size_t k = 0; k < exception.throughs.size(); ++k)
      for (uint32_t v : exception.throughs[k].vertices)
        through_at_[v].push_back(static_cast<uint32_t>(index) << 8 | static_cast<uint32_t>(k));
  }
  exceptions_.push_back(std::move(exception));
}

uint32_t ExceptionPaths::Intern(std::vector<uint32_t> items) {
  std::sort(items.begin(), items.end());
  items.erase(std::unique(items.begin(), items.end()), items.end());
  if (Drops(items)) return kDropped;
  auto found = set_index_.find(items);
  if (found != set_index_.end()) return found->second;
  const uint32_t id = static_cast<uint32_t>(sets_.size());
  sets_.push_back(items);
  set_index_.emplace(std::move(items), id);
  return id;
}

// A path that has met a false path with no -to, for setup and hold alike,
// is dropped at once.
bool ExceptionPaths::Drops(const std::vector<uint32_t>& items) const {
  for (uint32_t item : items) {
    const CompiledException& exception = exceptions_[item >> 8];
    if (exception.kind == Kind::kFalsePath && !exception.to.present && exception.setup &&
        exception.hold && (item & 0xFF) == exception.throughs.size())
      return true;
  }
  return false;
}

uint32_t ExceptionPaths::Start(uint32_t vertex, uint32_t other, int clock, int rf) {
  if (from_at_.empty() && clock_from_.empty()) return 0;
  std::vector<uint32_t> items;
  auto consider = [&](uint32_t index) {
    const CompiledException& exception = exceptions_[index];
    if (exception.kind == Kind::kFilter && index != static_cast<uint32_t>(filter_)) return;
    if (!exception.from.HasEdge(rf)) return;
    items.push_back(index << 8);
  };
  for (uint32_t v : {vertex, other == vertex ? 0u : other}) {
    auto found = v == 0 ? from_at_.end() : from_at_.find(v);
    if (found == from_at_.end()) continue;
    for (uint32_t index : found->second) consider(index);
  }
  if (clock >= 0)
    for (int index : clock_from_)
      if (exceptions_[index].from.HasClock(clock)) consider(static_cast<uint32_t>(index));
  if (items.empty()) return 0;
  return Intern(std::move(items));
}

bool ExceptionPaths::FilterAllowsStart(uint32_t vertex, uint32_t other, int clock, int rf) const {
  if (filter_ < 0) return true;
  const PathPoint& from = exceptions_[filter_].from;
  if (!from.present) return true;
  if (!from.HasEdge(rf)) return false;
  return from.HasVertex(vertex) || (other && from.HasVertex(other)) ||
         (clock >= 0 && from.HasClock(clock));
}

uint32_t ExceptionPaths::AdvanceAt(uint32_t states, uint32_t vertex, int rf) {
  const uint64_t key = (static_cast<uint64_t>(states) << 33) |
                       (static_cast<uint64_t>(vertex) << 1) | static_cast<uint64_t>(rf);
  auto cached = advance_cache_.find(key);
  if (cached != advance_cache_.end()) return cached->second;
  std::vector<uint32_t> items = sets_[states];
  bool changed = false;
  for (uint32_t item : through_at_.at(vertex)) {
    const uint32_t index = item >> 8;
    const uint32_t position = item & 0xFF;
    const CompiledException& exception = exceptions_[index];
    if (!exception.throughs[position].HasEdge(rf)) continue;
    if (position == 0 && !exception.from.present) {
      items.push_back(index << 8 | 1);
      changed = true;
      continue;
    }
    // A path that has passed the points before this one moves on; one
    // vertex may meet several lists in a row (a net, then a pin of it), as
    // the items of an exception come in the order of its lists.
    if (std::find(items.begin(), items.end(), index << 8 | position) != items.end()) {
      items.push_back(index << 8 | (position + 1));
      changed = true;
    }
  }
  const uint32_t result = changed ? Intern(std::move(items)) : states;
  advance_cache_.emplace(key, result);
  return result;
}

bool ExceptionPaths::Complete(uint32_t states, int index) const {
  const CompiledException& exception = exceptions_[index];
  const uint32_t want =
      static_cast<uint32_t>(index) << 8 | static_cast<uint32_t>(exception.throughs.size());
  const std::vector<uint32_t>& items = sets_[states];
  return std::binary_search(items.begin(), items.end(), want);
}

bool ExceptionPaths::Matches(const CompiledException& exception, uint32_t states, int launch_clock,
                             uint32_t end_vertex, int end_rf, int capture_clock) const {
  if (exception.tracked) {
    if (!Complete(states, exception.order)) return false;
  } else if (exception.from.present) {
    if (launch_clock < 0 || !exception.from.HasClock(launch_clock)) return false;
  }
  if (exception.to.present) {
    if (!exception.to.HasEdge(end_rf)) return false;
    const bool at_vertex = exception.to.HasVertex(end_vertex);
    const bool at_clock = capture_clock >= 0 && exception.to.HasClock(capture_clock);
    if (!at_vertex && !at_clock) return false;
  }
  return true;
}

const CompiledException* ExceptionPaths::Applying(uint32_t states, int launch_clock,
                                                  uint32_t end_vertex, int end_rf,
                                                  int capture_clock, bool setup) const {
  const CompiledException* best = nullptr;
  for (const CompiledException& exception : exceptions_) {
    if (exception.kind == Kind::kGroupPath || exception.kind == Kind::kFilter) continue;
    if (setup ? !exception.setup : !exception.hold) continue;
    if (!Matches(exception, states, launch_clock, end_vertex, end_rf, capture_clock)) continue;
    if (!best || Rank(exception.kind) > Rank(best->kind) ||
        (Rank(exception.kind) == Rank(best->kind) && exception.specificity >= best->specificity)) {
      best = &exception;
    }
  }
  return best;
}

const std::string* ExceptionPaths::Group(uint32_t states, int launch_clock, uint32_t end_vertex,
                                         int end_rf, int capture_clock) const {
  const CompiledException* best = nullptr;
  for (const CompiledException& exception : exceptions_) {
    if (exception.kind != Kind::kGroupPath) continue;
    if (!Matches(exception, states, launch_clock, end_vertex, end_rf, capture_clock)) continue;
    if (!best || exception.specificity >= best->specificity) best = &exception;
  }
  return best ? &best->group : nullptr;
}

bool ExceptionPaths::FilterAccepts(uint32_t states, int launch_clock, uint32_t end_vertex,
                                   int end_rf, int capture_clock) const {
  if (filter_ < 0) return true;
  return Matches(exceptions_[filter_], states, launch_clock, end_vertex, end_rf, capture_clock);
}

}  // namespace sta
