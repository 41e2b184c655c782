// How the delay of one timing arc and of one wire is worked out. The timer
// asks through this interface so that a model with wire delays can stand
// beside the lumped-capacitance one.
#pragma once

#include <string>

namespace cdm {
class LibTimingModel;
}

namespace sta {

class SlewScale;

// What a driver sees of its net, for one edge of the output and min or max.
struct NetLoad {
  float pin_cap = 0.0f;   // load pins and external pin load (F)
  float wire_cap = 0.0f;  // estimated or annotated (F)
  float wire_res = 0.0f;  // ohm
  float Total() const { return pin_cap + wire_cap; }
};

struct ArcTiming {
  float delay = 0.0f;  // seconds
  float slew = 0.0f;   // seconds, in the timer's measure
};

class ArcDelayCalc {
 public:
  virtual ~ArcDelayCalc() = default;
  virtual std::string Name() const = 0;

  // One arc of a cell: `model` is the library's model for the output edge,
  // `in_slew` the input's transition (timer's measure) and `scale` the
  // conversion to the cell's library measure.
  virtual ArcTiming GateDelay(const cdm::LibTimingModel& model, float in_slew, const NetLoad& load,
                              const SlewScale& scale) const = 0;

  // From a driver to one load pin of its net: the wire's delay and the
  // slew the load sees, given the driver's.
  virtual ArcTiming WireDelay(float driver_slew, const NetLoad& load) const = 0;

  // A top input driven through a resistance (set_drive): the delay and the
  // slew it gives the port under the load.
  virtual ArcTiming DriveResistance(float ohms, const NetLoad& load) const = 0;
};

}  // namespace sta
