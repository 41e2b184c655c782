// Where a net's switching activity came from: the origins the power
// report's net table names in its "Attrs" column (cdm::OriginToString).
#pragma once

#include "hostapi/cdm/PowerRecords.h"

namespace power {

using ActivityOrigin = cdm::PwrActivityOrigin;
constexpr int kActivityOriginCount = static_cast<int>(ActivityOrigin::kUnknown) + 1;

}  // namespace power
