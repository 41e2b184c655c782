// Commands of SDC that the store does not model: accepted, with one
// warning per command name (per read_sdc, or per session at the prompt),
// so that real files read to their end.
#include "cmdlib/HostCommands.h"
#include "msg/HostMsg.h"
#include "sdc/SdcCommand.h"
#include "sdc/SdcSource.h"

namespace sta::sdc {
namespace {

struct Shape {
  const char* name;
  const char* description;
  std::vector<const char*> flags;
  std::vector<const char*> valued;
  std::vector<const char*> positional;  // the last takes every further word
};

class UnmodelledCmd : public SdcCommand {
 public:
  explicit UnmodelledCmd(const Shape& shape) : SdcCommand(shape.name, shape.description) {
    for (const char* flag : shape.flags) Flag(flag, "Accepted");
    for (const char* option : shape.valued) Text(option, "Accepted");
    for (size_t i = 0; i < shape.positional.size(); ++i) {
      if (i + 1 == shape.positional.size())
        Objects(shape.positional[i], "Accepted", true);
      else
        Text(shape.positional[i], "Accepted", true);
    }
  }

 protected:
  bool Run(SdcStore&) override {
    if (SdcSource::FirstUse(name())) msg::HostMsg(SDC_006, {name()}, SdcSource::Where());
    return true;
  }
};

const Shape kShapes[] = {
    {"set_timing_derate",
     "Accepted, not modelled: derate delays",
     {"cell_delay", "cell_check", "net_delay", "data", "clock", "early", "late", "rise", "fall",
      "static", "dynamic", "increment"},
     {},
     {"derate_value", "object_list"}},
    {"set_max_time_borrow",
     "Accepted, not modelled: limit latch time borrowing",
     {},
     {},
     {"delay_value", "object_list"}},
    {"set_clock_gating_check",
     "Accepted, not modelled: clock gating checks",
     {"rise", "fall", "high", "low"},
     {"setup", "hold"},
     {"object_list"}},
    {"set_clock_sense",
     "Accepted, not modelled: the sense of clocks through pins",
     {"positive", "negative", "stop_propagation"},
     {"pulse", "clocks"},
     {"pin_list"}},
    {"set_sense",
     "Accepted, not modelled: the sense of signals through pins",
     {"non_unate", "positive", "negative", "clock_leaf", "stop_propagation"},
     {"type", "pulse", "clocks"},
     {"pin_list"}},
    {"set_data_check",
     "Accepted, not modelled: checks between data pins",
     {"setup", "hold"},
     {"from", "to", "rise_from", "fall_from", "rise_to", "fall_to", "clock"},
     {"value"}},
    {"set_min_pulse_width",
     "Accepted, not modelled: pulse width checks",
     {"low", "high"},
     {},
     {"value", "object_list"}},
    {"set_ideal_latency",
     "Accepted, not modelled: latency of ideal networks",
     {"rise", "fall", "min", "max"},
     {},
     {"value", "object_list"}},
    {"set_ideal_transition",
     "Accepted, not modelled: transition of ideal networks",
     {"rise", "fall", "min", "max"},
     {},
     {"value", "object_list"}},
    {"set_resistance",
     "Accepted, not modelled: resistance of nets",
     {"min", "max"},
     {},
     {"value", "net_list"}},
    {"set_voltage",
     "Accepted, not modelled: supply voltages",
     {},
     {"min", "object_list"},
     {"max_case_voltage"}},
    {"set_max_dynamic_power",
     "Accepted, not modelled: a dynamic power limit",
     {},
     {},
     {"power", "unit"}},
    {"set_max_leakage_power",
     "Accepted, not modelled: a leakage power limit",
     {},
     {},
     {"power", "unit"}},
    {"set_min_porosity",
     "Accepted, not modelled: routing porosity",
     {},
     {},
     {"porosity_value", "object_list"}},
    {"set_level_shifter_strategy",
     "Accepted, not modelled: level shifter strategy",
     {},
     {"rule"},
     {}},
    {"set_level_shifter_threshold",
     "Accepted, not modelled: level shifter thresholds",
     {},
     {"voltage", "percent"},
     {}},
    {"create_voltage_area",
     "Accepted, not modelled: voltage areas",
     {},
     {"name", "coordinate", "guard_band_x", "guard_band_y"},
     {"cell_list"}},
    {"current_instance",
     "Accepted, not modelled: names stay relative to the current design",
     {},
     {},
     {"instance"}},
};

cmdlib::HostCommandRegistrar registrar([] {
  for (const Shape& shape : kShapes) new UnmodelledCmd(shape);
});

}  // namespace
}  // namespace sta::sdc
