#include "power/ActivityPropagator.h"

#include <algorithm>
#include <cmath>

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
  passes_ = 0;
  for (pass_ = 0; pass_ < kMaxPasses; ++pass_) {
    ++passes_;
    if (!Pass()) break;
  }
  nets_ = nullptr;
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

bool ActivityPropagator::Pass() {
  const sta::TimingGraph& graph = *timer_.Graph();
  const cdm::Elaboration& elaboration = *timer_.Root()->GetElaboration();
  std::vector<NetActivity>& nets = *nets_;
  bool changed = false;
  for (uint32_t v : graph.LevelOrder()) {
    const sta::Vertex* vertex = graph.vertex(v);
    if (!vertex || !vertex->isDriver() || !vertex->pin() || !vertex->pin()->GetCell()) continue;
    const cdm::Net* net = vertex->pin()->GetNet();
    const uint32_t id = net ? net->FlatNetId() : 0;
    if (id == 0 || id >= nets.size() || fixed_[id] || elaboration.FlatNetDrivers(id)[0] != v)
      continue;
    NetActivity activity = CellOutput(vertex->pin());
    if (override_of_[id] >= 0) Apply(overrides_[override_of_[id]], activity);
    if (Differs(activity, nets[id])) changed = true;
    nets[id] = activity;
  }
  return changed;
}

NetActivity ActivityPropagator::CellOutput(const cdm::Pin* pin) {
  const cdm::Cell* cell = pin->GetCell();
  const auto* port = dynamic_cast<const cdm::LibPort*>(pin->GetPort());
  const cdm::LibBoolFuncExpr* function = port ? port->GetFunction() : nullptr;
  if (!function || function->IsEmpty() || !cell->GetRefLibCell()) {
    // A cell nothing is known of inside drives like a primary input.
    NetActivity activity{0.0, 0.5, ActivityOrigin::kDefault};
    Apply(annotations_.Inputs(), activity);
    activity.origin = ActivityOrigin::kDefault;
    return activity;
  }
  read_state_ = false;
  NetActivity activity = Evaluate(*function, *cell, nullptr);
  const ActivitySetting& registers = annotations_.Registers();
  if (read_state_ && (registers.rate || registers.probability)) Apply(registers, activity);
  return activity;
}

NetActivity ActivityPropagator::Evaluate(const cdm::LibBoolFuncExpr& function,
                                         const cdm::Cell& cell, const cdm::LibSequential* self) {
  const std::vector<cdm::LibPort*>& ports = function.GetFuncPorts();
  const cdm::LibCell* lib_cell = cell.GetRefLibCell();
  std::vector<double> probability(ports.size(), 0.5);
  std::vector<double> density(ports.size(), 0.0);
  for (size_t i = 0; i < ports.size(); ++i) {
    NetActivity input{0.0, 0.5, ActivityOrigin::kUnknown};
    if (const cdm::Pin* pin = PinOfPort(cell, ports[i])) {
      input = OfPin(pin);
    } else if (const cdm::LibSequential* sequential =
                   lib_cell->GetSequentialFromOutputPort(ports[i])) {
      read_state_ = true;
      input = StateOf(cell, sequential);
      // The state holding itself makes no transition of its own.
      if (sequential == self) input.rate = 0.0;
      if (ports[i] != sequential->first) input.probability = 1.0 - input.probability;
    }
    probability[i] = input.probability;
    density[i] = input.rate;
  }
  NetActivity out{0.0, 0.5, ActivityOrigin::kPropagated};
  FunctionActivity(Table(function), probability, density, out.probability, out.rate);
  return out;
}

NetActivity ActivityPropagator::StateOf(const cdm::Cell& cell,
                                        const cdm::LibSequential* sequential) {
  const auto& groups = cell.GetRefLibCell()->GetSequentials();
  std::vector<State>& states = states_[&cell];
  if (states.empty()) {
    states.resize(groups.size());
    for (State& state : states) state.first = NetActivity{0.0, 0.5, ActivityOrigin::kPropagated};
  }
  size_t index = 0;
  while (index < groups.size() && groups[index].get() != sequential) ++index;
  if (index == groups.size()) return NetActivity{0.0, 0.5, ActivityOrigin::kPropagated};
  State& state = states[index];
  if (state.pass == pass_ || state.busy) return state.first;
  state.busy = true;
  const NetActivity data = Evaluate(sequential->data, cell, sequential);
  const NetActivity clock = Evaluate(sequential->clock, cell, sequential);
  // One active edge a clock period: the state changes at most that often,
  // and with data independent from cycle to cycle 2p(1-p) of the times.
  const double edges = clock.rate / 2.0;
  const double p = data.probability;
  state.first =
      NetActivity{std::min(data.rate, 2.0 * p * (1.0 - p) * edges), p, ActivityOrigin::kPropagated};
  state.pass = pass_;
  state.busy = false;
  return state.first;
}

NetActivity ActivityPropagator::OfPin(const cdm::Pin* pin) const {
  const cdm::Net* net = pin->GetNet();
  const uint32_t id = net ? net->FlatNetId() : 0;
  if (id == 0 || id >= nets_->size()) return NetActivity{0.0, 0.5, ActivityOrigin::kUnknown};
  return (*nets_)[id];
}

const std::vector<bool>& ActivityPropagator::Table(const cdm::LibBoolFuncExpr& function) {
  auto found = tables_.find(&function);
  if (found == tables_.end()) found = tables_.emplace(&function, function.TruthTable()).first;
  return found->second;
}

}  // namespace power
