// set_switching_activity: the toggle rate and static probability of nets
// (named directly, or through their pins and ports), of every primary input
// or of every register output.
#include <sstream>

#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "power/ActivityStore.h"
#include "sdc/SdcCommand.h"

namespace power {
namespace {

using K = query::ObjectKind;

class SetSwitchingActivityCmd : public sta::sdc::SdcCommand {
 public:
  SetSwitchingActivityCmd()
      : SdcCommand("set_switching_activity",
                   "Set the toggle rate and static probability of nets, inputs or registers") {
    Number("toggle_rate", "Transitions per time unit, or per period of -base_clock or per -period");
    Number("static_probability", "Probability that the net is at 1, from 0 to 1");
    Text("base_clock", "Clock whose period the toggle rate counts in");
    Number("period", "Time the toggle rate counts in");
    Text("type", "inputs (every primary input) or registers (every register output)");
    Objects("object_list", "Nets, pins or ports", true);
  }

 protected:
  bool Run(sta::sdc::SdcStore& store) override {
    const bool rate = Has("toggle_rate");
    if (!rate && !Has("static_probability"))
      return Fail("give -toggle_rate, -static_probability or both");
    if (Has("base_clock") && Has("period"))
      return Fail("-base_clock and -period exclude each other");
    if (!rate && (Has("base_clock") || Has("period")))
      return Fail(std::string("-") + (Has("base_clock") ? "base_clock" : "period") +
                  " needs -toggle_rate");
    if (!Has("type") && !Has("object_list")) return Fail("give -type or objects");

    ActivitySetting setting;
    setting.origin = ActivityOrigin::kUser;
    if (rate) {
      const double value = NumberOf("toggle_rate");
      if (!(value >= 0.0)) return Fail("-toggle_rate must be 0 or more");
      double seconds = store.Units().Scale(sta::sdc::SdcUnits::kTime);
      if (Has("base_clock")) {
        const sta::sdc::Clock* clock = store.FindClock(TextOf("base_clock"));
        if (!clock) return Fail("no clock '" + TextOf("base_clock") + "'");
        seconds = clock->getPeriod();
      } else if (Has("period")) {
        seconds = NumberOf("period") * seconds;
      }
      if (!(seconds > 0.0)) return Fail("the period the toggle rate counts in must be above 0");
      setting.rate = RateSetting{value / seconds, false};
    }
    if (Has("static_probability")) {
      const double p = NumberOf("static_probability");
      if (!(p >= 0.0 && p <= 1.0)) return Fail("-static_probability must be from 0 to 1");
      setting.probability = p;
    }

    bool inputs = false, registers = false;
    if (Has("type")) {
      std::istringstream types(TextOf("type"));
      std::string type;
      while (types >> type) {
        if (type == "inputs") {
          inputs = true;
        } else if (type == "registers") {
          registers = true;
        } else {
          return Fail("'" + type + "' is no -type (inputs, registers)");
        }
      }
    }
    std::vector<std::string> nets;
    if (Has("object_list")) {
      std::vector<query::ObjectRef> objects;
      if (!ObjectsOf("object_list", {K::kNet, K::kPin, K::kPort}, objects)) return false;
      for (const query::ObjectRef& ref : objects) {
        if (ref.kind == K::kNet) nets.push_back(static_cast<cdm::Net*>(ref.object)->GetFullName());
      }
      for (cdm::Pin* pin : PinsOf(objects)) {
        if (const cdm::Net* net = pin->GetNet())
          nets.push_back(net->GetFullName());
        else
          WarnUnknown("net on pin", pin->GetFullName());
      }
    }

    ActivityAnnotations& annotations = ActivityStore::Current().Annotations();
    if (inputs) annotations.SetInputs(setting);
    if (registers) annotations.SetRegisters(setting);
    for (const std::string& net : nets) annotations.SetNet(net, setting);
    return true;
  }
};

cmdlib::HostCommandRegistrar registrar([] { new SetSwitchingActivityCmd(); });

}  // namespace
}  // namespace power
