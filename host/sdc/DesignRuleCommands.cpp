// set_max_transition, set_max_capacitance, set_min_capacitance,
// set_max_fanout and set_max_area.
#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/Port.h"
#include "sdc/SdcCommand.h"

namespace sta::sdc {
namespace {

using K = query::ObjectKind;

class DesignRuleCmd : public SdcCommand {
 public:
  using Field = std::optional<float> PortConstraints::*;
  using DesignField = std::optional<float> DesignConstraints::*;

  DesignRuleCmd(const char* name, const char* description, SdcUnits::Quantity quantity, bool scaled,
                Field port_field, DesignField design_field)
      : SdcCommand(name, description),
        quantity_(quantity),
        scaled_(scaled),
        port_field_(port_field),
        design_field_(design_field) {
    Number("value", "Limit", true);
    if (quantity == SdcUnits::kTime) {
      Flag("clock_path", "Accepted: for clock paths");
      Flag("data_path", "Accepted: for data paths");
      EdgeFlags("limit (accepted)");
    }
    Objects("object_list", "The design (current_design) or ports", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("value") || !Need("object_list")) return false;
    if (NumberOf("value") < 0.0) return Fail("the limit must not be negative");
    const float value =
        scaled_ ? Si(NumberOf("value"), quantity_) : static_cast<float>(NumberOf("value"));
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf("object_list", {K::kDesign, K::kPort}, objects)) return false;
    for (const query::ObjectRef& ref : objects) {
      if (ref.kind == K::kDesign)
        store.Design().*design_field_ = value;
      else
        store.Port(static_cast<cdm::Port*>(ref.object)).*port_field_ = value;
    }
    store.NoteChange();
    return true;
  }

 private:
  SdcUnits::Quantity quantity_;
  bool scaled_;
  Field port_field_;
  DesignField design_field_;
};

class SetMaxAreaCmd : public SdcCommand {
 public:
  SetMaxAreaCmd() : SdcCommand("set_max_area", "Set the largest area the design may take") {
    Number("area_value", "Area, as the library writes it", true);
    Flag("ignore_tns", "Accepted: recover area at the expense of total negative slack");
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("area_value")) return false;
    if (NumberOf("area_value") < 0.0) return Fail("the area must not be negative");
    store.Design().max_area = static_cast<float>(NumberOf("area_value"));
    store.NoteChange();
    return true;
  }
};

cmdlib::HostCommandRegistrar registrar([] {
  new DesignRuleCmd("set_max_transition", "Set the largest transition on the design or ports",
                    SdcUnits::kTime, true, &PortConstraints::max_transition,
                    &DesignConstraints::max_transition);
  new DesignRuleCmd("set_max_capacitance", "Set the largest load on the design or ports",
                    SdcUnits::kCapacitance, true, &PortConstraints::max_capacitance,
                    &DesignConstraints::max_capacitance);
  new DesignRuleCmd("set_min_capacitance", "Set the smallest load on the design or ports",
                    SdcUnits::kCapacitance, true, &PortConstraints::min_capacitance,
                    &DesignConstraints::min_capacitance);
  new DesignRuleCmd("set_max_fanout", "Set the largest fan-out on the design or ports",
                    SdcUnits::kQuantityCount, false, &PortConstraints::max_fanout,
                    &DesignConstraints::max_fanout);
  new SetMaxAreaCmd();
});

}  // namespace
}  // namespace sta::sdc
