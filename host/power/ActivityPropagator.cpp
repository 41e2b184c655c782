#include "power/ActivityPropagator.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

#include "db/Elaboration.h"
#include "db/PathLookup.h"
#include "graph/TimingGraph.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/LibBoolFuncExpr.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibStateTable.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/sta/Clock.h"
#include "power/FunctionActivity.h"
#include "sdc/SdcStore.h"
#include "search/Timer.h"

namespace power {
namespace {

const cdm::Pin* PinOfPort(const cdm::Cell& cell, const cdm::LibPort* port) {
  for (uint32_t i = 0; i < cell.PinCount(); ++i)
    if (cell.GetPin(i)->GetPort() == port) return cell.GetPin(i);
  return nullptr;
}

// Two toggles a period; 1 for the part of the period between the rising
// and the falling edge.
bool ClockActivity(const sta::sdc::Clock& clock, NetActivity& activity) {
  const double period = clock.getPeriod();
  if (!(period > 0.0)) return false;
  const std::vector<float>& waveform = clock.getWaveform();
  double high = 0.5;
  if (waveform.size() >= 2) {
    high = std::fmod(static_cast<double>(waveform[1]) - waveform[0], period) / period;
    if (high < 0.0) high += 1.0;
  }
  activity = NetActivity{2.0 / period, high, ActivityOrigin::kClock};
  return true;
}

bool Differs(const NetActivity& a, const NetActivity& b) {
  const double scale = std::max(std::fabs(a.rate), std::fabs(b.rate));
  return std::fabs(a.rate - b.rate) > 1e-6 * scale + 1e-12 ||
         std::fabs(a.probability - b.probability) > 1e-9 || a.origin != b.origin;
}

}  // namespace

ActivityPropagator::ActivityPropagator(const sta::Timer& timer,
                                       const ActivityAnnotations& annotations)
    : timer_(timer), annotations_(annotations) {}

void ActivityPropagator::Run(std::vector<NetActivity>& nets) {
  nets_ = &nets;
  Seed();
  Plan();
  passes_ = 0;
  // First from what the seeds reach, the registers' states not yet worked
  // out; then each state from its next state as that left it, and again
  // from the register outputs that moved. A net no pass reaches keeps the
  // figures of a primary input.
  NetActivity unset{0.0, 0.5, ActivityOrigin::kPropagated};
  Apply(annotations_.Inputs(), unset);
  unset.origin = ActivityOrigin::kPropagated;
  for (State& state : states_) state.value = unset;
  changed_at_.assign(nets.size(), -1);
  for (const Node& node : nodes_) {
    nets[node.net] = unset;
    // A cell nothing is known of inside and an annotated net are seeds.
    if (!node.function || override_of_[node.net] >= 0) {
      nets[node.net] = Work(node);
      changed_at_[node.net] = 0;
    }
  }
  for (uint32_t id = 1; id < nets.size(); ++id)
    if (fixed_[id]) changed_at_[id] = 0;
  Settle();
  std::fill(changed_at_.begin(), changed_at_.end(), -1);
  Latch();
  Settle();
  nets_ = nullptr;
}

void ActivityPropagator::Settle() {
  // Pass 1 works out what a seed (changed at 0) reaches, in order.
  for (pass_ = 1; pass_ <= kMaxPasses; ++pass_) {
    ++passes_;
    if (!Pass()) break;
  }
}

void ActivityPropagator::Latch() {
  // In order, so that a register reading another register's output
  // straight sees it latched; a next state reading its own state reads it
  // as it was before.
  std::vector<NetActivity>& nets = *nets_;
  for (const Node& node : nodes_) {
    if (!node.reads_state) continue;
    for (uint32_t r = node.first; r < node.first + node.count; ++r) {
      if (!(refs_[r] & kState)) continue;
      State& state = states_[refs_[r] & kIndex];
      if (state.latched) continue;
      state.value = Evaluate(*state.data, state.data_first, state.data_count);
      state.latched = true;
    }
    const NetActivity activity = Work(node);
    if (Differs(activity, nets[node.net])) changed_at_[node.net] = 0;
    nets[node.net] = activity;
  }
}

double ActivityPropagator::Rate(const RateSetting& rate) const {
  if (!rate.per_fastest_clock) return rate.value;
  return fastest_period_ > 0.0 ? rate.value / fastest_period_ : 0.0;
}

void ActivityPropagator::Apply(const ActivitySetting& setting, NetActivity& activity) const {
  if (setting.rate) activity.rate = Rate(*setting.rate);
  if (setting.probability) activity.probability = *setting.probability;
  activity.origin = setting.origin;
}

void ActivityPropagator::Seed() {
  const cdm::Elaboration& elaboration = *timer_.Root()->GetElaboration();
  const uint32_t count = elaboration.FlatNetCount();
  std::vector<NetActivity>& nets = *nets_;
  nets.assign(count + 1, NetActivity{0.0, 0.5, ActivityOrigin::kPropagated});
  nets[0] = NetActivity{0.0, 0.5, ActivityOrigin::kUnknown};
  fixed_.assign(count + 1, 0);
  override_of_.assign(count + 1, -1);
  overrides_.clear();
  states_.clear();

  fastest_period_ = 0.0;
  if (sta::sdc::SdcStore* store = timer_.Store()) {
    for (const sta::sdc::Clock* clock : store->Clocks()) {
      const double period = clock->getPeriod();
      if (period > 0.0 && (fastest_period_ == 0.0 || period < fastest_period_))
        fastest_period_ = period;
    }
  }

  const cdm::Design* design = timer_.Design();
  for (const auto& [name, setting] : annotations_.Nets()) {
    const cdm::Net* net = cdm::FindNetByPath(design, name);
    const uint32_t id = net ? net->FlatNetId() : 0;
    if (id == 0 || id > count) continue;
    override_of_[id] = static_cast<int32_t>(overrides_.size());
    overrides_.push_back(setting);
  }

  const sta::Sensitization& constants = timer_.Constants();
  const sta::ClockNetwork& clocks = timer_.Clocks();
  const ActivitySetting& inputs = annotations_.Inputs();
  for (uint32_t id = 1; id <= count; ++id) {
    NetActivity& activity = nets[id];
    const cdm::FlatNetRecord& record = elaboration.FlatNet(id);
    const uint32_t driver = record.driver_count ? elaboration.FlatNetDrivers(id)[0] : 0;
    const int value = record.const_value >= 0 ? record.const_value : constants.Value(driver);
    if (value >= 0) {
      // Nothing makes a constant toggle, whatever was annotated.
      activity = NetActivity{0.0, static_cast<double>(value), ActivityOrigin::kConstant};
      fixed_[id] = 1;
      continue;
    }
    if (driver == 0) {
      activity = NetActivity{0.0, 0.5, ActivityOrigin::kUnknown};
      fixed_[id] = 1;
    } else if (!clocks.ClocksAt(driver).empty()) {
      double best = 0.0;
      for (uint32_t number : clocks.ClocksAt(driver)) {
        NetActivity candidate;
        if (ClockActivity(*clocks.Clocks()[number], candidate) && candidate.rate > best) {
          best = candidate.rate;
          activity = candidate;
          fixed_[id] = 1;
        }
      }
    } else if (const cdm::Pin* pin = elaboration.VertexPin(driver); pin && !pin->GetCell()) {
      activity = NetActivity{0.0, 0.5, ActivityOrigin::kDefault};
      Apply(inputs, activity);
      fixed_[id] = 1;
    }
    if (override_of_[id] < 0) continue;
    const ActivitySetting& setting = overrides_[override_of_[id]];
    if (fixed_[id] || (setting.rate && setting.probability)) {
      Apply(setting, activity);
      fixed_[id] = 1;
    }
  }
}

void ActivityPropagator::Plan() {
  const sta::TimingGraph& graph = *timer_.Graph();
  const cdm::Elaboration& elaboration = *timer_.Root()->GetElaboration();
  const std::vector<NetActivity>& nets = *nets_;
  nodes_.clear();
  refs_.clear();
  states_.clear();
  first_state_.clear();
  for (uint32_t v : graph.LevelOrder()) {
    const sta::Vertex* vertex = graph.vertex(v);
    if (!vertex || !vertex->isDriver() || !vertex->pin() || !vertex->pin()->GetCell()) continue;
    const cdm::Pin* pin = vertex->pin();
    const cdm::Net* net = pin->GetNet();
    const uint32_t id = net ? net->FlatNetId() : 0;
    if (id == 0 || id >= nets.size() || fixed_[id] || elaboration.FlatNetDrivers(id)[0] != v)
      continue;
    Node node;
    node.net = id;
    const cdm::Cell& cell = *pin->GetCell();
    const auto* port = dynamic_cast<const cdm::LibPort*>(pin->GetPort());
    const cdm::LibBoolFuncExpr* function = port ? port->GetFunction() : nullptr;
    if (function && !function->IsEmpty() && cell.GetRefLibCell()) {
      node.function = function;
      node.first = AddRefs(*function, cell, node.reads_state);
      node.count = static_cast<uint32_t>(function->GetFuncPorts().size());
    }
    nodes_.push_back(node);
  }
  Order();
}

void ActivityPropagator::Order() {
  // What each node reads: the nodes of its input nets, and through a
  // register's state the nodes of its next state.
  std::vector<uint32_t> node_of(nets_->size(), UINT32_MAX);
  for (uint32_t i = 0; i < nodes_.size(); ++i) node_of[nodes_[i].net] = i;
  std::vector<uint32_t> dep_first(nodes_.size() + 1, 0);
  std::vector<uint32_t> deps;
  auto add = [&](uint32_t first, uint32_t count) {
    for (uint32_t r = first; r < first + count; ++r)
      if (!(refs_[r] & kState) && node_of[refs_[r]] != UINT32_MAX)
        deps.push_back(node_of[refs_[r]]);
  };
  for (uint32_t i = 0; i < nodes_.size(); ++i) {
    dep_first[i] = static_cast<uint32_t>(deps.size());
    const Node& node = nodes_[i];
    add(node.first, node.count);
    for (uint32_t r = node.first; r < node.first + node.count; ++r) {
      if (!(refs_[r] & kState)) continue;
      const State& state = states_[refs_[r] & kIndex];
      add(state.data_first, state.data_count);
    }
  }
  dep_first[nodes_.size()] = static_cast<uint32_t>(deps.size());
  // Depth first from each node in level order, inputs before readers; an
  // input met while its own inputs are being visited closes a loop, which
  // is cut there.
  std::vector<uint8_t> mark(nodes_.size(), 0);       // 0 new, 1 on the way, 2 placed
  std::vector<std::pair<uint32_t, uint32_t>> stack;  // node, next dependency
  std::vector<Node> ordered;
  ordered.reserve(nodes_.size());
  for (uint32_t root = 0; root < nodes_.size(); ++root) {
    if (mark[root]) continue;
    mark[root] = 1;
    stack.emplace_back(root, dep_first[root]);
    while (!stack.empty()) {
      auto& [node, next] = stack.back();
      if (next < dep_first[node + 1]) {
        const uint32_t dep = deps[next++];
        if (!mark[dep]) {
          mark[dep] = 1;
          stack.emplace_back(dep, dep_first[dep]);
        }
        continue;
      }
      mark[node] = 2;
      ordered.push_back(nodes_[node]);
      stack.pop_back();
    }
  }
  nodes_.swap(ordered);
}

uint32_t ActivityPropagator::AddRefs(const cdm::LibBoolFuncExpr& function, const cdm::Cell& cell,
                                     bool& reads_state) {
  const cdm::LibCell* lib_cell = cell.GetRefLibCell();
  // Gathered apart: a state met on the way adds refs of its own first.
  std::vector<Ref> refs;
  for (const cdm::LibPort* port : function.GetFuncPorts()) {
    Ref ref = 0;
    if (const cdm::Pin* pin = PinOfPort(cell, port)) {
      const cdm::Net* net = pin->GetNet();
      ref = net && net->FlatNetId() < nets_->size() ? net->FlatNetId() : 0;
    } else if (const cdm::LibSequential* sequential = lib_cell->GetSequentialFromOutputPort(port)) {
      reads_state = true;
      ref = kState | StateIndex(cell, sequential);
      if (port != sequential->first) ref |= kComplement;
    }
    refs.push_back(ref);
  }
  const uint32_t first = static_cast<uint32_t>(refs_.size());
  refs_.insert(refs_.end(), refs.begin(), refs.end());
  return first;
}

uint32_t ActivityPropagator::StateIndex(const cdm::Cell& cell,
                                        const cdm::LibSequential* sequential) {
  const auto& groups = cell.GetRefLibCell()->GetSequentials();
  auto found = first_state_.find(&cell);
  if (found == first_state_.end()) {
    // All the cell's states exist before any of their refs are made, so
    // that a next state reading a state of the cell finds it.
    const uint32_t first = static_cast<uint32_t>(states_.size());
    found = first_state_.emplace(&cell, first).first;
    states_.resize(first + groups.size());
    for (size_t g = 0; g < groups.size(); ++g) {
      bool unused = false;
      const uint32_t data = AddRefs(groups[g]->data, cell, unused);
      State& state = states_[first + g];
      state.data = &groups[g]->data;
      state.data_first = data;
      state.data_count = static_cast<uint32_t>(groups[g]->data.GetFuncPorts().size());
    }
  }
  size_t g = 0;
  while (g < groups.size() && groups[g].get() != sequential) ++g;
  return found->second + static_cast<uint32_t>(g);
}

NetActivity ActivityPropagator::Work(const Node& node) {
  NetActivity activity;
  if (!node.function) {
    // A cell nothing is known of inside drives like a primary input.
    activity = NetActivity{0.0, 0.5, ActivityOrigin::kDefault};
    Apply(annotations_.Inputs(), activity);
    activity.origin = ActivityOrigin::kDefault;
  } else {
    activity = Evaluate(*node.function, node.first, node.count);
    const ActivitySetting& registers = annotations_.Registers();
    if (node.reads_state && (registers.rate || registers.probability)) Apply(registers, activity);
  }
  if (override_of_[node.net] >= 0) Apply(overrides_[override_of_[node.net]], activity);
  return activity;
}

bool ActivityPropagator::Pass() {
  std::vector<NetActivity>& nets = *nets_;
  bool changed = false;
  for (const Node& node : nodes_) {
    // Only what an input of changed (in this pass, or the one before).
    if (!Dirty(node.first, node.count)) continue;
    NetActivity activity = Work(node);
    if (pass_ > kDampFrom) {
      // Still moving: a loop that swings (an odd ring) settles halfway.
      activity.rate = 0.5 * (activity.rate + nets[node.net].rate);
      activity.probability = 0.5 * (activity.probability + nets[node.net].probability);
    }
    // Reached for the first time, it passes on even figures that happen
    // to be those it had.
    if (pass_ == 1 || Differs(activity, nets[node.net])) {
      changed = true;
      changed_at_[node.net] = pass_;
    }
    nets[node.net] = activity;
  }
  return changed;
}

bool ActivityPropagator::Dirty(uint32_t first, uint32_t count) const {
  // States are held while the passes run.
  for (uint32_t i = first; i < first + count; ++i)
    if (!(refs_[i] & kState) && changed_at_[refs_[i]] >= pass_ - 1) return true;
  return false;
}

NetActivity ActivityPropagator::Input(Ref ref) const {
  if (!(ref & kState)) return (*nets_)[ref];
  NetActivity input = states_[ref & kIndex].value;
  if (ref & kComplement) input.probability = 1.0 - input.probability;
  return input;
}

NetActivity ActivityPropagator::Evaluate(const cdm::LibBoolFuncExpr& function, uint32_t first,
                                         uint32_t count) {
  inputs_.resize(count);
  for (uint32_t i = 0; i < count; ++i) {
    const NetActivity input = Input(refs_[first + i]);
    inputs_[i] = Activity{input.probability, input.rate};
  }
  const Activity out = FunctionActivity(function, inputs_);
  return NetActivity{out.density, out.probability, ActivityOrigin::kPropagated};
}

}  // namespace power
