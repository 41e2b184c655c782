#include "hostapi/sta/SdcMgr.h"

#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Port.h"
#include "sdc/SdcStore.h"
#include "sdc/WireLoadChoice.h"

namespace sta::sdc {

SdcMgr::SdcMgr(const std::string& design_name)
    : design_rule_mgr(this),
      system_interface_mgr(this),
      design_name_(design_name),
      store_(std::make_unique<SdcStore>(design_name)) {}

SdcMgr::~SdcMgr() = default;

SdcStore& SdcMgr::store() {
  return *store_;
}

const InputDrive* SdcMgr::getInputDrive(const cdm::Port* port) {
  if (!store_->Sync()) return nullptr;
  const PortConstraints* record = store_->FindPort(port);
  return record ? record->drive.get() : nullptr;
}

const PortExtLoad* SdcMgr::getPortExtCap(const cdm::Port* port) {
  if (!store_->Sync()) return nullptr;
  const PortConstraints* record = store_->FindPort(port);
  return record ? record->load.get() : nullptr;
}

float SdcMgr::getPortExtWireCap(const cdm::Port* port, const cdm::RiseFall* edge,
                                const cdm::MinMax* minmax) {
  const PortExtLoad* load = getPortExtCap(port);
  return load ? load->getWireCap(edge, minmax).value_or(0.0f) : 0.0f;
}

void SdcMgr::getLogicValue(const cdm::Port* port, cdm::LogicValue& value, bool& isSet) {
  if (!store_->Sync() || !port) return;
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  if (const PortConstraints* record = store_->FindPort(port); record && record->logic) {
    value = *record->logic;
    isSet = true;
    return;
  }
  const PinConstraints* pin = store_->FindPin(design->FindPin(port->Name()));
  if (pin && pin->case_value) {
    value = *pin->case_value;
    isSet = true;
  }
}

bool SdcMgr::isSourceIdealPin(const cdm::Pin* pin) {
  if (!store_->Sync()) return false;
  const PinConstraints* record = store_->FindPin(pin);
  return record && record->ideal_source;
}

bool SdcMgr::hasDrivingCell() {
  return store_->Sync() && store_->HasDrivingCell();
}

const cdm::WireLoad* SdcMgr::getWireLoadModel(const cdm::MinMax* minmax) {
  if (!store_->Sync()) return nullptr;
  // The library's default model is not reported as set: callers fall back
  // to it themselves.
  const WireLoadChoice choice = ChooseDesignWireLoad(*store_, minmax);
  return choice.source == WireLoadChoice::Source::kLibraryDefault ? nullptr : choice.model;
}

const cdm::WireLoad* SdcMgr::getWireLoadModel(const cdm::Port* port, const cdm::MinMax* minmax) {
  if (!store_->Sync()) return nullptr;
  const PortConstraints* record = store_->FindPort(port);
  return record ? record->wire_load[minmax->index()] : nullptr;
}

cdm::WireLoadMode SdcMgr::getWireLoadMode() {
  store_->Sync();
  return WireLoadModeInForce(*store_);
}

const InputDelaySet* SdcMgr::getInputDelays(const cdm::Pin* pin) {
  if (!store_->Sync()) return nullptr;
  const PinConstraints* record = store_->FindPin(pin);
  return record && !record->input_delays.empty() ? &record->input_delays : nullptr;
}

const OutputDelaySet* SdcMgr::getOutputDelays(const cdm::Pin* pin) {
  if (!store_->Sync()) return nullptr;
  const PinConstraints* record = store_->FindPin(pin);
  return record && !record->output_delays.empty() ? &record->output_delays : nullptr;
}

const std::vector<Clock*>& SdcMgr::getClocks() {
  static const std::vector<Clock*> kNone;
  return store_->Sync() ? store_->Clocks() : kNone;
}

Clock* SdcMgr::findClock(const std::string& name) {
  return store_->Sync() ? store_->FindClock(name) : nullptr;
}

std::vector<const cdm::RiseFall*> splitRiseFall(const cdm::RiseFallBoth* edges) {
  std::vector<const cdm::RiseFall*> split;
  if (!edges) return split;
  if (edges->HasRise()) split.push_back(cdm::RiseFall::rise_);
  if (edges->HasFall()) split.push_back(cdm::RiseFall::fall_);
  return split;
}

}  // namespace sta::sdc
