#include "db/LibAccess.h"

#include <memory>

#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Root.h"

namespace cdm {

LibCell* FindLibCellForLink(Root* root, const std::string& name, Reference** ref) {
  for (LibertyLib* lib : root->LibertyLibs()) {
    if (LibCell* cell = lib->GetLibCell(name)) {
      *ref = cell;
      return cell;
    }
  }
  if (LibertyLib* generic = root->GetGenericLib()) {
    if (LibCell* cell = generic->GetLibCell(name)) {
      *ref = cell;
      return cell;
    }
  }
  *ref = nullptr;
  return nullptr;
}

void LibCellPinPorts(LibCell* cell, std::vector<Port*>& ports) {
  std::unique_ptr<Iterator<LibPort>> it(cell->LibPortIter());
  while (it->HasNext()) {
    LibPort* port = it->Next();
    // Internal pins of the library cell have no connection in a netlist.
    if (port->direction <= kDirInout) ports.push_back(port);
  }
}

}  // namespace cdm
