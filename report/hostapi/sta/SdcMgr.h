// The constraint store of a design, as reports and the timer read it.
// Values are SI: seconds, farads, ohms. Constraints are kept on the
// design's objects; after the netlist changes (a new link, another current
// design) the store finds its objects again by name and drops, with a
// warning each, the constraints whose objects are gone.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "hostapi/cdm/LibEnums.h"
#include "hostapi/cdm/LogicValue.h"
#include "hostapi/cdm/Selectors.h"
#include "hostapi/sta/Clock.h"
#include "hostapi/sta/DesignRuleMgr.h"
#include "hostapi/sta/InputDrive.h"
#include "hostapi/sta/PortDelay.h"
#include "hostapi/sta/PortExtLoad.h"
#include "hostapi/sta/SystemInterfaceMgr.h"

namespace cdm {
class Design;
class Pin;
class Port;
class WireLoad;
}  // namespace cdm

namespace sta::sdc {

class SdcStore;

class SdcMgr {
 public:
  explicit SdcMgr(const std::string& design_name);
  ~SdcMgr();
  SdcMgr(const SdcMgr&) = delete;
  SdcMgr& operator=(const SdcMgr&) = delete;

  DesignRuleMgr design_rule_mgr;
  SystemInterfaceMgr system_interface_mgr;

  // set_drive, set_input_transition and set_driving_cell of a port; null
  // when none of them is set on it.
  const InputDrive* getInputDrive(const cdm::Port* port);
  // set_load and set_port_fanout_number of a port; null when neither is set.
  const PortExtLoad* getPortExtCap(const cdm::Port* port);
  // The external wire capacitance of a port (set_load -wire_load), farads;
  // 0 when unset.
  float getPortExtWireCap(const cdm::Port* port, const cdm::RiseFall* edge,
                          const cdm::MinMax* minmax);
  // set_logic_zero / set_logic_one / set_logic_dc on the port, else
  // set_case_analysis on its pin. `value` and `isSet` are written only when
  // a value is set.
  void getLogicValue(const cdm::Port* port, cdm::LogicValue& value, bool& isSet);
  // The pin is a source of an ideal network (set_ideal_network).
  bool isSourceIdealPin(const cdm::Pin* pin);
  // Some input port has a driving cell.
  bool hasDrivingCell();

  // The wire-load model of the design: the one set_wire_load_model put on
  // the design, else the one chosen by the design's area when a selection
  // group applies (set_wire_load_selection_group, or the library's default
  // selection); null otherwise (the library's default_wire_load then
  // applies). The model's `library` is the library that holds it.
  const cdm::WireLoad* getWireLoadModel(const cdm::MinMax* minmax);
  // The model set_wire_load_model put on the port; null when none.
  const cdm::WireLoad* getWireLoadModel(const cdm::Port* port, const cdm::MinMax* minmax);
  // set_wire_load_mode, else the default library's default_wire_load_mode,
  // else top.
  cdm::WireLoadMode getWireLoadMode();

  // The delays set on a pin (a top port's pin, or a cell pin), in the order
  // they were set; null when there are none.
  const InputDelaySet* getInputDelays(const cdm::Pin* pin);
  const OutputDelaySet* getOutputDelays(const cdm::Pin* pin);

  // Every clock, in the order defined; the clock of that name, or null.
  const std::vector<Clock*>& getClocks();
  Clock* findClock(const std::string& name);

  // The name of the design the store belongs to.
  const std::string& getDesignName() const { return design_name_; }
  // The host's side of the store: everything the commands set, and the
  // rest of what the timer reads (exceptions, case analysis, ...).
  SdcStore& store();

 private:
  std::string design_name_;
  std::unique_ptr<SdcStore> store_;
};

// The rise-fall edges of a RiseFallBoth, rise first.
std::vector<const cdm::RiseFall*> splitRiseFall(const cdm::RiseFallBoth* edges);

}  // namespace sta::sdc
