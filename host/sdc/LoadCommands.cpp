// set_load, set_port_fanout_number and set_fanout_load.
#include <cstdio>
#include <utility>

#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Port.h"
#include "msg/HostMsg.h"
#include "sdc/SdcCommand.h"
#include "sdc/SdcSource.h"

namespace sta::sdc {
namespace {

using K = query::ObjectKind;

class SetLoadCmd : public SdcCommand {
 public:
  SetLoadCmd()
      : SdcCommand("set_load", "Set the capacitance outside the design at ports or on nets") {
    Number("value", "Capacitance", true);
    MinMaxFlags("load");
    EdgeFlags("load");
    Flag("pin_load", "Pin capacitance (the default for ports)");
    Flag("wire_load", "Wire capacitance");
    Flag("subtract_pin_load", "On a net: the value includes the net's pin capacitance");
    Objects("objects", "Ports or nets", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("value") || !Need("objects")) return false;
    const float farads = Si(NumberOf("value"), SdcUnits::kCapacitance);
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf("objects", {K::kPort, K::kNet}, objects)) return false;
    // A negative load takes capacitance off, and is kept as given; as it is
    // more often a slip, it is said.
    if (farads < 0.0f && !objects.empty()) {
      char shown[32];
      std::snprintf(shown, sizeof shown, "%g", NumberOf("value"));
      msg::HostMsg(SET_LOAD_001, {name(), shown}, SdcSource::Where());
    }
    const bool wire = Has("wire_load"), pin = Has("pin_load") || !wire;
    bool told = false;  // of -subtract_pin_load on a port, once a command
    for (const query::ObjectRef& ref : objects) {
      if (ref.kind == K::kPort) {
        auto* port = static_cast<cdm::Port*>(ref.object);
        if (Has("subtract_pin_load") && !std::exchange(told, true))
          msg::HostMsg(SDC_006, {name() + ": -subtract_pin_load on port '" + port->Name() + "'"},
                       SdcSource::Where());
        if (pin) store.SetPortLoad(port, Edges(), Which(), false, farads);
        if (wire) store.SetPortLoad(port, Edges(), Which(), true, farads);
        continue;
      }
      NetConstraints& net = store.Net(static_cast<cdm::Net*>(ref.object));
      for (const cdm::MinMax* mm : {cdm::MinMax::min_, cdm::MinMax::max_})
        if (Covers(Which(), mm)) net.wire_cap[mm->index()] = farads;
      net.subtract_pin_load = Has("subtract_pin_load");
      store.NoteChange();
    }
    return true;
  }
};

class SetPortFanoutNumberCmd : public SdcCommand {
 public:
  SetPortFanoutNumberCmd()
      : SdcCommand("set_port_fanout_number", "Set the number of fan-out points outside ports") {
    Integer("value", "Number of external fan-out points", true);
    MinMaxFlags("fan-out");
    Objects("port_list", "Ports", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("value") || !Need("port_list")) return false;
    if (IntegerOf("value") < 0) return Fail("the fan-out number must not be negative");
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf("port_list", {K::kPort}, objects)) return false;
    for (const query::ObjectRef& ref : objects)
      store.SetPortFanout(static_cast<cdm::Port*>(ref.object), Which(),
                          static_cast<float>(IntegerOf("value")));
    return true;
  }
};

class SetFanoutLoadCmd : public SdcCommand {
 public:
  SetFanoutLoadCmd() : SdcCommand("set_fanout_load", "Set the fanout load outside output ports") {
    Number("value", "Fanout load", true);
    Objects("port_list", "Output ports", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("value") || !Need("port_list")) return false;
    if (NumberOf("value") < 0.0) return Fail("the fanout load must not be negative");
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf("port_list", {K::kPort}, objects)) return false;
    const float value = static_cast<float>(NumberOf("value"));
    for (const query::ObjectRef& ref : objects) {
      auto* port = static_cast<cdm::Port*>(ref.object);
      store.Port(port).fanout_load = value;
      // Reports read the fanout load as the port's attribute.
      cdm::Attribute attribute;
      attribute.id = cdm::AttrId::kFanoutLoad;
      attribute.kind = cdm::AttrKind::kFloat;
      attribute.float_value = value;
      port->SetAttribute(attribute);
    }
    store.NoteChange();
    return true;
  }
};

cmdlib::HostCommandRegistrar registrar([] {
  new SetLoadCmd();
  new SetPortFanoutNumberCmd();
  new SetFanoutLoadCmd();
});

}  // namespace
}  // namespace sta::sdc
