// The environment of the design's ports: external loads and fan-out.
// Reached as the `system_interface_mgr` member of SdcMgr.
#pragma once

namespace cdm {
class Port;
}

namespace sta::sdc {

class PortExtLoad;
class SdcMgr;

class SystemInterfaceMgr {
 public:
  // The port's external load record; null when nothing is set on it.
  const PortExtLoad* getPortExtCap(const cdm::Port* port) const;

 private:
  friend class SdcMgr;
  explicit SystemInterfaceMgr(SdcMgr* sdc) : sdc_(sdc) {}
  SdcMgr* sdc_;
};

}  // namespace sta::sdc
