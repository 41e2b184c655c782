#include "hostapi/cdm/DbManager.h"

#include "db/PathLookup.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/DesignIterators.h"
#include "hostapi/cdm/Root.h"

namespace cdm {

Root* DbManager::GetRoot() {
  // Never destroyed: the database lives until the process ends, which
  // then need not free it object by object.
  static Root* root = new Root();
  return root;
}

Design* DbManager::GetCurrentDesign() {
  return GetRoot()->GetCurrentDesign();
}

LibertyLib* DbManager::GetDefaultLiberty() {
  return GetRoot()->GetDefaultLiberty();
}

LibertyLib* DbManager::GetGenericLib() {
  return GetRoot()->GetGenericLib();
}

Cell* DbManager::FindCell(const std::string& name) {
  return FindCellByPath(GetCurrentDesign(), name);
}

Net* DbManager::FindNet(const std::string& name) {
  return FindNetByPath(GetCurrentDesign(), name);
}

Pin* DbManager::FindPin(const std::string& name) {
  return FindPinByPath(GetCurrentDesign(), name);
}

bool DbManager::HasUnmappedGtechCell(const Design* design) {
  if (!design) return false;
  for (DesignCellIterator it(design, true, [](const Cell* cell) { return cell->IsGTechCell(); });
       it.HasNext();)
    return true;
  return false;
}

}  // namespace cdm
