#include "power/PowerActivitySource.h"

#include "power/ActivityStore.h"

namespace power {

// The store's origins and the report's have the same values.
static_assert(static_cast<int>(ActivityOrigin::kConstant) ==
                  static_cast<int>(cdm::PwrActivityOrigin::kConstant) &&
              static_cast<int>(ActivityOrigin::kUnknown) ==
                  static_cast<int>(cdm::PwrActivityOrigin::kUnknown));

ActivityOf DesignActivity(const ActivityStore& store) {
  return [&store](const cdm::Pin* pin) {
    const NetActivity& net = store.OfPin(pin);
    PinActivity activity;
    activity.rate = net.rate;
    activity.probability = net.probability;
    activity.origin = static_cast<cdm::PwrActivityOrigin>(net.origin);
    return activity;
  };
}

}  // namespace power
