// The store's input and output delays.
#include <algorithm>

#include "hostapi/cdm/Pin.h"
#include "sdc/EdgeSlots.h"
#include "sdc/SdcStore.h"

namespace sta::sdc {

void SdcStore::SetPortDelay(bool input, cdm::Pin* pin, const ClockEdge* edge, cdm::Pin* ref_pin,
                            const cdm::RiseFallBoth* edges, MinMaxAll which, float seconds,
                            bool add, bool network_latency_included, bool source_latency_included) {
  PinConstraints& record = Pin(pin);
  // A delay is one per clock edge and reference pin; the values of further
  // commands for the same pair go into it. Without -add_delay the delays
  // for other pairs go.
  auto set = [&](auto& owned, auto& delays) {
    auto same = [&](const PortDelay* delay) {
      return delay->clock_edge_ == edge && delay->ref_pin_ == ref_pin;
    };
    if (!add) {
      delays.erase(std::remove_if(delays.begin(), delays.end(),
                                  [&](const PortDelay* delay) { return !same(delay); }),
                   delays.end());
      owned.erase(std::remove_if(owned.begin(), owned.end(),
                                 [&](const auto& delay) { return !same(delay.get()); }),
                  owned.end());
    }
    auto found = std::find_if(delays.begin(), delays.end(), same);
    PortDelay* delay = nullptr;
    if (found != delays.end()) {
      delay = *found;
    } else {
      using Delay = typename std::remove_reference_t<decltype(owned)>::value_type::element_type;
      owned.push_back(std::make_unique<Delay>());
      Delay* made = owned.back().get();
      delays.push_back(made);
      made->clock_edge_ = edge;
      made->ref_pin_ = ref_pin;
      made->ref_pin_name_ = ref_pin ? ref_pin->GetFullName() : std::string();
      made->pin_ = pin;
      delay = made;
    }
    delay->network_latency_included_ = network_latency_included;
    delay->source_latency_included_ = source_latency_included;
    ForEachSlot(edges, which, [&](const cdm::RiseFall* rf, const cdm::MinMax* minmax) {
      delay->delays_.setValue(rf, minmax, seconds);
    });
  };
  if (input)
    set(record.input_owned, record.input_delays);
  else
    set(record.output_owned, record.output_delays);
  NoteChange();
}

}  // namespace sta::sdc
