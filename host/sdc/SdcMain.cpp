#include "hostapi/sta/SdcMain.h"

#include <map>
#include <memory>
#include <string>

#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/sta/SdcMgr.h"

namespace sta::sdc {

SdcMgr* SdcMain::getOrCreateSdcMgr(const cdm::Design* design) {
  // One store per design name: a design read again keeps its constraints.
  static std::map<std::string, std::unique_ptr<SdcMgr>> managers;
  if (!design) design = cdm::DbManager::GetCurrentDesign();
  const std::string name = design ? design->Name() : std::string();
  std::unique_ptr<SdcMgr>& slot = managers[name];
  if (!slot) slot = std::make_unique<SdcMgr>(name);
  return slot.get();
}

}  // namespace sta::sdc
