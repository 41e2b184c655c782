// Interim: the library classes are not in yet, so no library cell is found.
#include "db/LibAccess.h"

namespace cdm {

LibCell* FindLibCellForLink(Root*, const std::string&, Reference** ref) {
  *ref = nullptr;
  return nullptr;
}

void LibCellPinPorts(LibCell*, std::vector<Port*>&) {}

}  // namespace cdm
