#include "hostapi/cdm/DesignIterators.h"

#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Pin.h"

namespace cdm {

DesignCellIterator::DesignCellIterator(const Design* design, bool deep,
                                       const std::function<bool(const Cell*)>& predicate)
    : predicate_(predicate), deep_(deep) {
  if (design) stack_.push_back(Frame{design->GetNetlist(), 0});
  Advance();
}

Cell* DesignCellIterator::Next() {
  Cell* cell = ahead_;
  if (cell) Advance();
  return cell;
}

void DesignCellIterator::Advance() {
  ahead_ = nullptr;
  while (!stack_.empty()) {
    Frame& frame = stack_.back();
    if (frame.next == frame.netlist->CellCount()) {
      stack_.pop_back();
      continue;
    }
    Cell* cell = &frame.netlist->Cells()[frame.next++];
    // Each cell before the cells below it.
    if (deep_)
      if (Netlist* child = cell->GetChildNetlist()) stack_.push_back(Frame{child, 0});
    if (!predicate_ || predicate_(cell)) {
      ahead_ = cell;
      return;
    }
  }
}

}  // namespace cdm
