// Walks the (edge, min/max) slots that a command's -rise/-fall and
// -min/-max select.
#pragma once

#include "hostapi/cdm/Selectors.h"
#include "sdc/SdcStore.h"

namespace sta::sdc {

template <class Visit>
void ForEachSlot(const cdm::RiseFallBoth* edges, MinMaxAll which, Visit visit) {
  for (const cdm::RiseFall* edge : {cdm::RiseFall::rise_, cdm::RiseFall::fall_}) {
    if (edge == cdm::RiseFall::rise_ ? !edges->HasRise() : !edges->HasFall()) continue;
    for (const cdm::MinMax* minmax : {cdm::MinMax::min_, cdm::MinMax::max_})
      if (Covers(which, minmax)) visit(edge, minmax);
  }
}

}  // namespace sta::sdc
