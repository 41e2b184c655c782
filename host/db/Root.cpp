#include "hostapi/cdm/Root.h"

#include "hostapi/cdm/DbManager.h"

namespace cdm {

Root::Root() = default;
Root::~Root() = default;

const std::string* Root::Intern(std::string_view name) {
  return &*names_.emplace(name).first;
}

Root* DbManager::GetRoot() {
  static Root root;
  return &root;
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

}  // namespace cdm
