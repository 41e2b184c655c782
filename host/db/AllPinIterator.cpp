#include "hostapi/cdm/DesignIterators.h"

#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Pin.h"

namespace cdm {

AllPinIterator::AllPinIterator(const Design* design, bool deep,
                               const std::function<bool(const Pin*)>& predicate)
    : predicate_(predicate), deep_(deep) {
  if (design) {
    Netlist* netlist = design->GetNetlist();
    stack_.push_back(Frame{netlist, 0, 0, netlist->PortPinCount()});
  }
  Advance();
}

Pin* AllPinIterator::Next() {
  Pin* pin = ahead_;
  if (pin) Advance();
  return pin;
}

void AllPinIterator::Advance() {
  ahead_ = nullptr;
  while (!stack_.empty()) {
    Frame& frame = stack_.back();
    if (frame.next_pin < frame.run_end) {
      Pin* pin = frame.netlist->PinAt(frame.next_pin++);
      if (!predicate_ || predicate_(pin)) {
        ahead_ = pin;
        return;
      }
      continue;
    }
    // The run ends: after a hierarchical cell's pins come those below it.
    const uint32_t kDescended = 0x80000000u;
    uint32_t cells_done = frame.next_cell & ~kDescended;
    if (deep_ && !(frame.next_cell & kDescended) && cells_done > 0) {
      Cell* done = &frame.netlist->Cells()[cells_done - 1];
      if (Netlist* child = done->GetChildNetlist()) {
        frame.next_cell |= kDescended;  // before the push moves the frame
        stack_.push_back(Frame{child, 0, 0, child->PortPinCount()});
        continue;
      }
    }
    frame.next_cell = cells_done;
    if (frame.next_cell == frame.netlist->CellCount()) {
      stack_.pop_back();
      continue;
    }
    uint32_t cell = frame.next_cell++;
    frame.next_pin = frame.netlist->CellFirstPin(cell);
    frame.run_end = frame.next_pin + frame.netlist->CellPinCount(cell);
  }
}

}  // namespace cdm
