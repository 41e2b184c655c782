// Full path names ("u_core/u_alu/U12/A") looked up from the current design.
// Escaped names may hold "/" themselves, so each level first tries the
// whole remaining path as one local name, then every split at a "/".
#include "db/PathLookup.h"

#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"

namespace cdm {
namespace {

template <class T, class FindLocal>
T* FindByPath(Netlist* netlist, const std::string& path, FindLocal find_local) {
  if (!netlist || path.empty()) return nullptr;
  if (T* found = find_local(netlist, path)) return found;
  for (size_t slash = path.find('/'); slash != std::string::npos;
       slash = path.find('/', slash + 1)) {
    Cell* cell = netlist->FindCell(path.substr(0, slash));
    if (!cell || !cell->GetChildNetlist()) continue;
    if (T* found = FindByPath<T>(cell->GetChildNetlist(), path.substr(slash + 1), find_local))
      return found;
  }
  return nullptr;
}

}  // namespace

Cell* FindCellByPath(const Design* top, const std::string& name) {
  if (!top) return nullptr;
  return FindByPath<Cell>(top->GetNetlist(), name, [](Netlist* netlist, const std::string& local) {
    return netlist->FindCell(local);
  });
}

Net* FindNetByPath(const Design* top, const std::string& name) {
  if (!top) return nullptr;
  return FindByPath<Net>(top->GetNetlist(), name, [](Netlist* netlist, const std::string& local) {
    return netlist->FindNet(local);
  });
}

Pin* FindPinByPath(const Design* top, const std::string& name) {
  if (!top) return nullptr;
  // A top port first, then "cell path/pin name".
  if (Pin* port_pin = top->FindPin(name)) return port_pin;
  size_t slash = name.rfind('/');
  if (slash == std::string::npos) return nullptr;
  Cell* cell = FindCellByPath(top, name.substr(0, slash));
  return cell ? cell->FindPin(name.substr(slash + 1)) : nullptr;
}

}  // namespace cdm
