#include "sdc/WireLoadChoice.h"

#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/LibertyLib.h"
#include "sdc/SdcStore.h"

namespace sta::sdc {

const cdm::WireLoad* DesignWireLoad(SdcStore& store, const cdm::MinMax* minmax) {
  return store.Design().wire_load[minmax->index()];
}

cdm::WireLoadMode WireLoadModeInForce(const SdcStore& store) {
  if (store.DesignRef().wire_load_mode) return *store.DesignRef().wire_load_mode;
  const cdm::LibertyLib* lib = cdm::DbManager::GetDefaultLiberty();
  return lib ? lib->GetDefaultWireloadMode() : cdm::WireLoadMode::kTop;
}

}  // namespace sta::sdc
