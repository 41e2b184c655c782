#include "dcalc/SlewScale.h"

#include "hostapi/cdm/LibertyLib.h"

namespace sta {
namespace {

// Width of the slew window in percent, averaged over the two edges (the
// libraries we meet use one window for both).
float Window(const cdm::LibertyLib* lib) {
  if (!lib) return 60.0f;
  float sum = 0.0f;
  for (const cdm::RiseFall* rf : {cdm::RiseFall::rise_, cdm::RiseFall::fall_})
    sum += lib->GetSlewUpperThreshold(rf) - lib->GetSlewLowerThreshold(rf);
  return sum > 0.0f ? sum / 2.0f : 60.0f;
}

float Derate(const cdm::LibertyLib* lib) {
  if (!lib) return 1.0f;
  const float derate = lib->GetSlewDerateFromLibrary();
  return derate > 0.0f ? derate : 1.0f;
}

}  // namespace

SlewScale::SlewScale(const cdm::LibertyLib* lib, const cdm::LibertyLib* reference) {
  // Timer measure m (between the reference thresholds, derated by the
  // reference) against table value v of `lib`: a ramp of full swing T has
  // m = T * window_ref / 100 and v * derate_lib = T * window_lib / 100.
  to_library_ = (Window(lib) / Window(reference)) / Derate(lib);
}

}  // namespace sta
