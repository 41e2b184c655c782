// The store's clocks: create_clock, create_generated_clock and the clock
// attributes.
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
