#include "dcalc/LumpedCapDelayCalc.h"

#include "dcalc/SlewScale.h"
#include "dcalc/TableLookup.h"
#include "hostapi/cdm/LibTiming.h"

namespace sta {

ArcTiming LumpedCapDelayCalc::GateDelay(const cdm::LibTimingModel& model, float in_slew,
                                        const NetLoad& load, const SlewScale& scale) const {
  TableArgs args;
  args.in_slew = scale.ToLibrary(in_slew);
  args.load = load.Total();
  ArcTiming timing;
  if (const cdm::LibTable* delay = model.GetDelayTable()) timing.delay = TableValue(*delay, args);
  if (const cdm::LibTable* transition = model.GetTransitionTable())
    timing.slew = scale.FromLibrary(TableValue(*transition, args));
  if (timing.slew < 0.0f) timing.slew = 0.0f;
  return timing;
}

ArcTiming LumpedCapDelayCalc::WireDelay(float driver_slew, const NetLoad&) const {
  return ArcTiming{0.0f, driver_slew};
}

ArcTiming LumpedCapDelayCalc::DriveResistance(float ohms, const NetLoad& load) const {
  const float rc = ohms * load.Total();
  return ArcTiming{rc, rc};
}

}  // namespace sta
