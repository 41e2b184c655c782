// set_driving_cell, set_drive and set_input_transition.
#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/cdm/Root.h"
#include "sdc/SdcCommand.h"

namespace sta::sdc {
namespace {

using K = query::ObjectKind;

class SetDrivingCellCmd : public SdcCommand {
 public:
  SetDrivingCellCmd()
      : SdcCommand("set_driving_cell", "Set the library cell that drives input ports") {
    Text("lib_cell", "The driving library cell");
    Text("library", "The library of the cell (default: the default library, then any)");
    Text("pin", "The cell's output pin that drives the port");
    Text("from_pin", "The cell's input pin the driving arc starts at");
    Number("multiply_by", "Factor on the cell's drive");
    Flag("dont_scale", "Do not scale the cell's figures to the operating conditions");
    Flag("no_design_rule", "Do not take the cell's design rules to the port");
    EdgeFlags("driving cell");
    MinMaxFlags("driving cell");
    Number("input_transition_rise", "Rising transition at the cell's input");
    Number("input_transition_fall", "Falling transition at the cell's input");
    Objects("clock", "Accepted: the clock of the input transition");
    Flag("clock_fall", "Accepted: the falling edge of that clock");
    Objects("port_list", "Input ports", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("lib_cell") || !Need("port_list")) return false;
    DrivingCellSpec spec;
    const std::string cell_name = TextOf("lib_cell");
    std::string library = TextOf("library");
    cdm::LibertyLib* lib = nullptr;
    if (!library.empty()) {
      lib = cdm::DbManager::GetRoot()->GetLibertyLib(library);
      if (!lib) {
        WarnUnknown("library", library);
        return true;
      }
      spec.lib_cell = lib->GetLibCell(cell_name);
    } else {
      lib = cdm::DbManager::GetDefaultLiberty();
      spec.lib_cell = lib ? lib->GetLibCell(cell_name) : nullptr;
      for (cdm::LibertyLib* each : cdm::DbManager::GetRoot()->LibertyLibs())
        if (!spec.lib_cell) spec.lib_cell = each->GetLibCell(cell_name);
    }
    if (!spec.lib_cell) {
      WarnUnknown("library cell", cell_name);
      return true;
    }
    if (Has("pin")) {
      spec.to_port = spec.lib_cell->FindPort(TextOf("pin"));
      if (!spec.to_port || !spec.to_port->IsOutput()) {
        WarnUnknown("output pin of " + cell_name, TextOf("pin"));
        return true;
      }
    } else {
      int outputs = 0;
      for (cdm::LibPort* port : spec.lib_cell->GetPorts())
        if (port->IsOutput() && !port->IsBus()) ++outputs;
      if (outputs > 1)
        return Fail("library cell '" + cell_name + "' has several outputs; give -pin");
    }
    if (Has("from_pin")) {
      spec.from_port = spec.lib_cell->FindPort(TextOf("from_pin"));
      if (!spec.from_port || !spec.from_port->IsInput()) {
        WarnUnknown("input pin of " + cell_name, TextOf("from_pin"));
        return true;
      }
    }
    spec.multiply_by = Has("multiply_by") ? static_cast<float>(NumberOf("multiply_by")) : 1.0f;
    if (!(spec.multiply_by > 0.0f)) return Fail("-multiply_by must be above 0");
    spec.dont_scale = Has("dont_scale");
    spec.no_design_rule = Has("no_design_rule");
    if (Has("input_transition_rise"))
      spec.input_transition[0] = Si(NumberOf("input_transition_rise"), SdcUnits::kTime);
    if (Has("input_transition_fall"))
      spec.input_transition[1] = Si(NumberOf("input_transition_fall"), SdcUnits::kTime);
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf("port_list", {K::kPort}, objects)) return false;
    KeepDirection(objects, true);
    for (const query::ObjectRef& ref : objects)
      store.SetDrivingCell(static_cast<cdm::Port*>(ref.object), Edges(), Which(), spec);
    return true;
  }
};

// set_drive and set_input_transition: a value per edge and min/max on
// input ports.
class PortDriveCmd : public SdcCommand {
 public:
  PortDriveCmd(const char* name, const char* description, bool slew)
      : SdcCommand(name, description), slew_(slew) {
    Number(slew ? "transition" : "resistance", slew ? "Transition" : "Drive resistance", true);
    EdgeFlags(slew ? "transition" : "resistance");
    MinMaxFlags(slew ? "transition" : "resistance");
    if (slew) {
      Objects("clock", "Accepted: the clock the transition comes with");
      Flag("clock_fall", "Accepted: the falling edge of that clock");
    }
    Objects("port_list", "Input ports", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    const char* value_option = slew_ ? "transition" : "resistance";
    if (!Need(value_option) || !Need("port_list")) return false;
    if (NumberOf(value_option) < 0.0)
      return Fail(std::string(value_option) + " must not be negative");
    std::vector<query::ObjectRef> objects;
    if (!ObjectsOf("port_list", {K::kPort}, objects)) return false;
    KeepDirection(objects, true);
    const float value = Si(NumberOf(value_option), slew_ ? SdcUnits::kTime : SdcUnits::kResistance);
    for (const query::ObjectRef& ref : objects) {
      auto* port = static_cast<cdm::Port*>(ref.object);
      if (slew_)
        store.SetInputSlew(port, Edges(), Which(), value);
      else
        store.SetDriveResistance(port, Edges(), Which(), value);
    }
    return true;
  }

 private:
  bool slew_;
};

cmdlib::HostCommandRegistrar registrar([] {
  new SetDrivingCellCmd();
  new PortDriveCmd("set_drive", "Set the drive resistance outside input ports", false);
  new PortDriveCmd("set_input_transition", "Set the transition at input ports", true);
});

}  // namespace
}  // namespace sta::sdc
