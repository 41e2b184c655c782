#include "dcalc/DelayCalcInputs.h"

#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"

namespace sta {

void DelayCalcInputs::WireParasitics(const cdm::Pin* driver, int mm, float& cap, float& res,
                                     bool& whole) const {
  cap = 0.0f;
  res = 0.0f;
  whole = false;
  if (const cdm::Net* net = driver->GetNet()) {
    net->NetCapAndRes(nullptr, cap, res, mm == 0 ? cdm::MinMax::min_ : cdm::MinMax::max_,
                      cdm::kHierNetRC);
  }
}

}  // namespace sta
