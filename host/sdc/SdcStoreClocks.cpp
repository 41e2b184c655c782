// The store's clocks: create_clock, create_generated_clock and the clock
// attributes.
#include <algorithm>

#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Root.h"
#include "sdc/EdgeSlots.h"
#include "sdc/SdcStore.h"

namespace sta::sdc {

Clock* SdcStore::MakeClock(const std::string& name) {
  Clock* clock = FindClock(name);
  if (!clock) {
    owned_clocks_.push_back(std::make_unique<Clock>(cdm::DbManager::GetRoot()->Intern(name)));
    clock = owned_clocks_.back().get();
    clocks_.push_back(clock);
    clock_index_[name] = clock;
  }
  // A redefinition starts from nothing; the object stays, and with it the
  // delays relative to the clock.
  clock->period_ = 0.0f;
  clock->waveform_.clear();
  clock->sources_.clear();
  clock->source_names_.clear();
  clock->propagated_ = false;
  clock->added_ = false;
  clock->generated_ = false;
  clock->generated_source_ = nullptr;
  clock->generated_source_name_.clear();
  clock->master_ = nullptr;
  clock->divide_by_ = 1;
  clock->multiply_by_ = 1;
  clock->inverted_ = false;
  clock->edges_.clear();
  clock->edge_shifts_.clear();
  clock->duty_cycle_ = 0.0f;
  clock->combinational_ = false;
  clock->comment_.clear();
  clock->uncertainty_[0].reset();
  clock->uncertainty_[1].reset();
  clock->source_latency_ = cdm::RiseFallMinMax();
  clock->network_latency_ = cdm::RiseFallMinMax();
  clock->transition_ = cdm::RiseFallMinMax();
  NoteChange();
  return clock;
}

void SdcStore::SetClockWaveform(Clock* clock, float period, std::vector<float> waveform) {
  clock->period_ = period;
  clock->waveform_ = std::move(waveform);
  NoteChange();
}

void SdcStore::SetClockSources(Clock* clock, const std::vector<cdm::Pin*>& sources, bool add) {
  clock->sources_ = sources;
  clock->source_names_.clear();
  for (const cdm::Pin* pin : sources) clock->source_names_.push_back(pin->GetFullName());
  clock->added_ = add;
  NoteChange();
}

void SdcStore::SetGeneratedClock(Clock* clock, cdm::Pin* source, const Clock* master, int divide_by,
                                 int multiply_by, bool invert) {
  clock->generated_ = true;
  clock->generated_source_ = source;
  clock->generated_source_name_ = source ? source->GetFullName() : std::string();
  clock->master_ = master;
  clock->divide_by_ = divide_by;
  clock->multiply_by_ = multiply_by;
  clock->inverted_ = invert;
  NoteChange();
}

void SdcStore::SetGeneratedShape(Clock* clock, std::vector<int> edges,
                                 std::vector<float> edge_shifts, float duty_cycle,
                                 bool combinational) {
  clock->edges_ = std::move(edges);
  clock->edge_shifts_ = std::move(edge_shifts);
  clock->duty_cycle_ = duty_cycle;
  clock->combinational_ = combinational;
  NoteChange();
}

void SdcStore::SetClockComment(Clock* clock, std::string comment) {
  clock->comment_ = std::move(comment);
}

void SdcStore::SetClockPropagated(Clock* clock, bool propagated) {
  clock->propagated_ = propagated;
  NoteChange();
}

void SdcStore::SetClockUncertainty(Clock* clock, MinMaxAll setup_hold, float seconds) {
  for (const cdm::MinMax* minmax : {cdm::MinMax::min_, cdm::MinMax::max_})
    if (Covers(setup_hold, minmax)) clock->uncertainty_[minmax->index()] = seconds;
  NoteChange();
}

void SdcStore::SetClockLatency(Clock* clock, bool source, const cdm::RiseFallBoth* edges,
                               MinMaxAll which, float seconds) {
  cdm::RiseFallMinMax& values = source ? clock->source_latency_ : clock->network_latency_;
  ForEachSlot(edges, which, [&](const cdm::RiseFall* edge, const cdm::MinMax* minmax) {
    values.setValue(edge, minmax, seconds);
  });
  NoteChange();
}

void SdcStore::SetClockTransition(Clock* clock, const cdm::RiseFallBoth* edges, MinMaxAll which,
                                  float seconds) {
  ForEachSlot(edges, which, [&](const cdm::RiseFall* edge, const cdm::MinMax* minmax) {
    clock->transition_.setValue(edge, minmax, seconds);
  });
  NoteChange();
}

void SdcStore::RetireClock(Clock* clock) {
  clocks_.erase(std::remove(clocks_.begin(), clocks_.end(), clock), clocks_.end());
  clock_index_.erase(clock->Name());
  // The object stays owned (retired), so that nothing that still points
  // at it dangles; it is no longer found.
}

}  // namespace sta::sdc

namespace sta::sdc {

void SdcStore::RemoveClock(Clock* clock) {
  RetireClock(clock);
  auto relative = [&](const PortDelay* delay) { return delay->getClock() == clock; };
  for (auto& entry : pins_) {
    PinConstraints& record = *entry.second;
    auto drop = [&](auto& owned, auto& delays) {
      delays.erase(std::remove_if(delays.begin(), delays.end(), relative), delays.end());
      owned.erase(std::remove_if(owned.begin(), owned.end(),
                                 [&](const auto& delay) { return relative(delay.get()); }),
                  owned.end());
    };
    drop(record.input_owned, record.input_delays);
    drop(record.output_owned, record.output_delays);
  }
  for (ClockGroups& groups : clock_groups_)
    for (auto& group : groups.groups)
      group.erase(std::remove(group.begin(), group.end(), clock), group.end());
  inter_clock_.erase(std::remove_if(inter_clock_.begin(), inter_clock_.end(),
                                    [&](const InterClockUncertainty& entry) {
                                      return entry.from == clock || entry.to == clock;
                                    }),
                     inter_clock_.end());
  for (auto it = exceptions_.begin(); it != exceptions_.end();) {
    bool emptied = false;
    auto strip = [&](ExceptionPoint& point) {
      const bool had = !point.objects.empty();
      point.objects.erase(
          std::remove_if(point.objects.begin(), point.objects.end(),
                         [&](const SdcObject& object) { return object.ref.object == clock; }),
          point.objects.end());
      if (had && point.objects.empty()) emptied = true;
    };
    if (it->from) strip(*it->from);
    for (ExceptionPoint& through : it->throughs) strip(through);
    if (it->to) strip(*it->to);
    it = emptied ? exceptions_.erase(it) : it + 1;
  }
  NoteChange();
}

}  // namespace sta::sdc
