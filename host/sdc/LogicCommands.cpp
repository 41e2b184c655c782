// set_logic_zero, set_logic_one, set_logic_dc, set_case_analysis,
// set_ideal_network and set_dont_touch_network.
#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Port.h"
#include "sdc/SdcCommand.h"

namespace sta::sdc {
namespace {

using K = query::ObjectKind;

class SetLogicCmd : public SdcCommand {
 public:
  SetLogicCmd(const char* name, const char* description, cdm::LogicValue value)
      : SdcCommand(name, description), value_(value) {
    Objects("port_list", "Input ports", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("port_list")) return false;
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf("port_list", {K::kPort}, objects)) return false;
    KeepDirection(objects, true);
    for (const query::ObjectRef& ref : objects)
      store.Port(static_cast<cdm::Port*>(ref.object)).logic = value_;
    store.NoteChange();
    return true;
  }

 private:
  cdm::LogicValue value_;
};

class SetCaseAnalysisCmd : public SdcCommand {
 public:
  SetCaseAnalysisCmd()
      : SdcCommand("set_case_analysis",
                   "Hold ports or pins at a constant, or let only one transition through") {
    Text("value", "0, 1, zero, one, rise, rising, fall or falling", true);
    Objects("port_or_pin_list", "Ports or pins", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("value") || !Need("port_or_pin_list")) return false;
    const std::string text = TextOf("value");
    cdm::LogicValue value;
    if (text == "0" || text == "zero") {
      value = cdm::kLogicZero;
    } else if (text == "1" || text == "one") {
      value = cdm::kLogicOne;
    } else if (text == "rise" || text == "rising") {
      value = cdm::kLogicRise;
    } else if (text == "fall" || text == "falling") {
      value = cdm::kLogicFall;
    } else {
      return Fail("'" + text + "' is no case value (0, 1, zero, one, rise, rising, fall, falling)");
    }
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf("port_or_pin_list", {K::kPort, K::kPin}, objects)) return false;
    for (cdm::Pin* pin : PinsOf(objects)) store.Pin(pin).case_value = value;
    store.NoteChange();
    return true;
  }
};

// set_ideal_network and set_dont_touch_network: sources of networks.
class NetworkCmd : public SdcCommand {
 public:
  NetworkCmd(const char* name, const char* description, bool ideal)
      : SdcCommand(name, description), ideal_(ideal) {
    Flag("no_propagate", "Only the nets the sources drive, not through cells");
    Objects("object_list",
            ideal ? "Ports, pins or nets (a net stands for its driver)"
                  : "Ports, pins or clocks (a clock stands for its sources)",
            true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("object_list")) return false;
    std::vector<query::ObjectRef> objects;
    const std::vector<K> kinds = ideal_ ? std::vector<K>{K::kPort, K::kPin, K::kNet}
                                        : std::vector<K>{K::kPort, K::kPin, K::kClock};
    if (!ObjectsOf("object_list", kinds, objects)) return false;
    std::vector<cdm::Pin*> pins = PinsOf(objects);
    for (const query::ObjectRef& ref : objects) {
      if (ref.kind == K::kNet) {
        cdm::Pin* driver = static_cast<cdm::Net*>(ref.object)->GetDriverPin();
        if (driver)
          pins.push_back(driver);
        else
          WarnUnknown("driver of net", query::FullName(ref));
      } else if (ref.kind == K::kClock) {
        for (cdm::Pin* pin : static_cast<Clock*>(ref.object)->getSources()) pins.push_back(pin);
      }
    }
    for (cdm::Pin* pin : pins) {
      PinConstraints& record = store.Pin(pin);
      if (ideal_) {
        record.ideal_source = true;
        record.ideal_no_propagate = Has("no_propagate");
      } else {
        record.dont_touch_network = true;
        record.dont_touch_no_propagate = Has("no_propagate");
      }
    }
    store.NoteChange();
    return true;
  }

 private:
  bool ideal_;
};

cmdlib::HostCommandRegistrar registrar([] {
  new SetLogicCmd("set_logic_zero", "Hold input ports at logic 0", cdm::kLogicZero);
  new SetLogicCmd("set_logic_one", "Hold input ports at logic 1", cdm::kLogicOne);
  new SetLogicCmd("set_logic_dc", "Declare input ports don't care", cdm::kLogicDontCare);
  new SetCaseAnalysisCmd();
  new NetworkCmd("set_ideal_network", "Treat the networks from these sources as ideal", true);
  new NetworkCmd("set_dont_touch_network", "Keep the networks from these sources as they are",
                 false);
});

}  // namespace
}  // namespace sta::sdc
