#include "hostapi/cdm/Selectors.h"

namespace cdm {
namespace {
constexpr RiseFall kRise(0), kFall(1);
constexpr RiseFallBoth kRiseOnly(0), kFallOnly(1), kRiseFall(2);
constexpr MinMax kMin(0), kMax(1);
}  // namespace

const RiseFall* const RiseFall::rise_ = &kRise;
const RiseFall* const RiseFall::fall_ = &kFall;
const RiseFallBoth* const RiseFallBoth::rise_ = &kRiseOnly;
const RiseFallBoth* const RiseFallBoth::fall_ = &kFallOnly;
const RiseFallBoth* const RiseFallBoth::rise_fall_ = &kRiseFall;
const MinMax* const MinMax::min_ = &kMin;
const MinMax* const MinMax::max_ = &kMax;

const char* RiseFallBoth::name() const {
  switch (index_) {
    case 0:
      return "rise";
    case 1:
      return "fall";
    default:
      return "rise_fall";
  }
}

void RiseFallMinMax::setValue(const RiseFallBoth* rfb, const MinMax* mm, float v) {
  if (rfb->HasRise()) setValue(RiseFall::rise_, mm, v);
  if (rfb->HasFall()) setValue(RiseFall::fall_, mm, v);
}

bool RiseFallMinMax::empty() const {
  for (const auto& value : values_)
    if (value) return false;
  return true;
}

}  // namespace cdm
