// set_input_delay and set_output_delay.
#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/Pin.h"
#include "sdc/SdcCommand.h"

namespace sta::sdc {
namespace {

using K = query::ObjectKind;

class PortDelayCmd : public SdcCommand {
 public:
  PortDelayCmd(const char* name, const char* description, bool input)
      : SdcCommand(name, description), input_(input) {
    Number("delay_value", "Delay", true);
    Objects("clock", "The clock the delay is relative to");
    Flag("clock_fall", "Relative to the clock's falling edge");
    Flag("level_sensitive", "Accepted: the delay is kept as an edge-triggered one");
    EdgeFlags("delay");
    MinMaxFlags("delay");
    Flag("add_delay", "Keep the delays relative to other clock edges");
    Flag("network_latency_included", "The delay holds the clock's network latency");
    Flag("source_latency_included", "The delay holds the clock's source latency");
    Objects("reference_pin", "The delay is relative to the clock at this pin");
    Objects("port_pin_list", "Ports or pins", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("delay_value") || !Need("port_pin_list")) return false;
    if (Has("clock_fall") && !Has("clock")) return Fail("-clock_fall needs -clock");
    const ClockEdge* edge = nullptr;
    if (Has("clock")) {
      std::vector<query::ObjectRef> clocks;
      if (!ObjectsOf("clock", {K::kClock}, clocks)) return false;
      if (clocks.empty())
        return true;  // warned; a delay without its clock would mean another thing
      if (clocks.size() > 1) return Fail("-clock takes one clock");
      auto* clock = static_cast<Clock*>(clocks.front().object);
      edge = clock->getEdge(Has("clock_fall") ? cdm::RiseFall::fall_ : cdm::RiseFall::rise_);
    }
    cdm::Pin* ref_pin = nullptr;
    if (Has("reference_pin")) {
      std::vector<query::ObjectRef> refs;
      if (!ObjectsOf("reference_pin", {K::kPin, K::kPort}, refs)) return false;
      std::vector<cdm::Pin*> pins = PinsOf(refs);
      if (pins.empty()) return true;  // warned
      ref_pin = pins.front();
    }
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf("port_pin_list", {K::kPort, K::kPin}, objects)) return false;
    KeepDirection(objects, input_);
    const float value = Si(NumberOf("delay_value"), SdcUnits::kTime);
    for (cdm::Pin* pin : PinsOf(objects))
      store.SetPortDelay(input_, pin, edge, ref_pin, Edges(), Which(), value, Has("add_delay"),
                         Has("network_latency_included"), Has("source_latency_included"));
    return true;
  }

 private:
  bool input_;
};

cmdlib::HostCommandRegistrar registrar([] {
  new PortDelayCmd("set_input_delay", "Set the arrival of inputs relative to a clock", true);
  new PortDelayCmd("set_output_delay", "Set the required time of outputs relative to a clock",
                   false);
});

}  // namespace
}  // namespace sta::sdc
