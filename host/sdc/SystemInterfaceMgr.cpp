#include "hostapi/sta/SystemInterfaceMgr.h"

#include "hostapi/sta/SdcMgr.h"

namespace sta::sdc {

const PortExtLoad* SystemInterfaceMgr::getPortExtCap(const cdm::Port* port) const {
  return sdc_->getPortExtCap(port);
}

}  // namespace sta::sdc
