#include "hostapi/sta/DesignRuleMgr.h"

#include "hostapi/sta/SdcMgr.h"
#include "sdc/SdcStore.h"

namespace sta::sdc {
namespace {

float Limit(SdcMgr* sdc, const cdm::Port* port, std::optional<float> PortConstraints::*limit) {
  SdcStore& store = sdc->store();
  if (!store.Sync()) return 0.0f;
  const PortConstraints* record = store.FindPort(port);
  return record ? (record->*limit).value_or(0.0f) : 0.0f;
}

}  // namespace

float DesignRuleMgr::getMaxTranConstraint(const cdm::Port* port) const {
  return Limit(sdc_, port, &PortConstraints::max_transition);
}

float DesignRuleMgr::getMaxCapConstraint(const cdm::Port* port) const {
  return Limit(sdc_, port, &PortConstraints::max_capacitance);
}

float DesignRuleMgr::getMinCapConstraint(const cdm::Port* port) const {
  return Limit(sdc_, port, &PortConstraints::min_capacitance);
}

float DesignRuleMgr::getMaxFanoutConstraint(const cdm::Port* port) const {
  return Limit(sdc_, port, &PortConstraints::max_fanout);
}

}  // namespace sta::sdc
