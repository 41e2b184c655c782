// Which wire-load model and mode are in force for the design.
#pragma once

#include "hostapi/cdm/LibEnums.h"
#include "hostapi/cdm/Selectors.h"

namespace cdm {
class WireLoad;
}

namespace sta::sdc {

class SdcStore;

// set_wire_load_model on the design, else null.
const cdm::WireLoad* DesignWireLoad(SdcStore& store, const cdm::MinMax* minmax);
// set_wire_load_mode, else the default library's default_wire_load_mode,
// else top.
cdm::WireLoadMode WireLoadModeInForce(const SdcStore& store);

}  // namespace sta::sdc
