#include "hostapi/cdm/DesignIterators.h"

#include "db/FlatNet.h"
#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"

namespace cdm {
namespace {

void GatherCells(Netlist* netlist, bool deep, const std::function<bool(const Cell*)>& predicate,
                 std::vector<Cell*>& cells) {
  for (Cell& cell : netlist->Cells()) {
    if (!predicate || predicate(&cell)) cells.push_back(&cell);
    if (deep && cell.GetChildNetlist()) GatherCells(cell.GetChildNetlist(), deep, predicate, cells);
  }
}

void GatherPins(Netlist* netlist, bool deep, const std::function<bool(const Pin*)>& predicate,
                std::vector<Pin*>& pins) {
  auto take = [&](Pin* pin) {
    if (!predicate || predicate(pin)) pins.push_back(pin);
  };
  for (uint32_t i = 0; i < netlist->PortPinCount(); ++i) take(netlist->PortPin(i));
  for (Cell& cell : netlist->Cells()) {
    for (uint32_t i = 0; i < cell.PinCount(); ++i) take(cell.GetPin(i));
    if (deep && cell.GetChildNetlist()) GatherPins(cell.GetChildNetlist(), deep, predicate, pins);
  }
}

}  // namespace

DesignCellIterator::DesignCellIterator(const Design* design, bool deep,
                                       const std::function<bool(const Cell*)>& predicate) {
  if (design) GatherCells(design->GetNetlist(), deep, predicate, cells_);
}

AllPinIterator::AllPinIterator(const Design* design, bool deep,
                               const std::function<bool(const Pin*)>& predicate) {
  if (design) GatherPins(design->GetNetlist(), deep, predicate, pins_);
}

NetConnIter::NetConnIter(const Net* net, bool with_hierarchical,
                         const std::function<bool(const Pin*)>& predicate) {
  WalkFlatNet(net, with_hierarchical, [&](Pin* pin) {
    if (!predicate || predicate(pin)) pins_.push_back(pin);
  });
}

}  // namespace cdm
