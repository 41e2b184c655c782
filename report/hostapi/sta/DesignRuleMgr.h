// The design-rule limits of the constraint store as they bear on one
// port: set_max_transition, set_max_capacitance, set_min_capacitance and
// set_max_fanout. Reached as the `design_rule_mgr` member of SdcMgr.
#pragma once

namespace cdm {
class Port;
}

namespace sta::sdc {

class SdcMgr;

class DesignRuleMgr {
 public:
  // The limit set on the port itself; 0.0 when none is set. Seconds,
  // farads, farads and a plain count.
  float getMaxTranConstraint(const cdm::Port* port) const;
  float getMaxCapConstraint(const cdm::Port* port) const;
  float getMinCapConstraint(const cdm::Port* port) const;
  float getMaxFanoutConstraint(const cdm::Port* port) const;

 private:
  friend class SdcMgr;
  explicit DesignRuleMgr(SdcMgr* sdc) : sdc_(sdc) {}
  SdcMgr* sdc_;
};

}  // namespace sta::sdc
