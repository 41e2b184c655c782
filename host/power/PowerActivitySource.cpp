#include "power/PowerActivitySource.h"

#include "power/ActivityStore.h"

namespace power {

ActivityOf DesignActivity(const ActivityStore& store) {
  return [&store](const cdm::Pin* pin) {
    const NetActivity& net = store.OfPin(pin);
    PinActivity activity;
    activity.rate = net.rate;
    activity.probability = net.probability;
    activity.origin = net.origin;
    return activity;
  };
}

}  // namespace power
