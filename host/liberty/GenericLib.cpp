#include "liberty/GenericLib.h"

#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Root.h"

namespace liberty {

const char* GenericLibText() {
  return "";
}

std::unique_ptr<cdm::LibertyLib> MakeGenericLib(cdm::Root* root) {
  // Interim until the reader lands: the library has no cells yet.
  return std::make_unique<cdm::LibertyLib>(root->Intern("gtech"));
}

}  // namespace liberty
