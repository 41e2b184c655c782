#include "hostapi/cdm/DesignIterators.h"

#include "db/FlatNet.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"

namespace cdm {

NetConnIter::NetConnIter(const Net* net, bool with_hierarchical,
                         const std::function<bool(const Pin*)>& predicate) {
  WalkFlatNet(net, with_hierarchical, [&](Pin* pin) {
    if (!predicate || predicate(pin)) pins_.push_back(pin);
  });
}

}  // namespace cdm
