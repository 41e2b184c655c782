#include "hostapi/cdm/Pin.h"

#include <algorithm>
#include "db/FlatNet.h"
#include "db/Netlist.h"

#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Port.h"

namespace cdm {

Netlist* Pin::GetNetlist() const {
  if (owner_ & 1) return reinterpret_cast<Netlist*>(owner_ & ~uintptr_t{1});
  return owner_ ? reinterpret_cast<Cell*>(owner_)->GetNetlist() : nullptr;
}

Net* Pin::GetNet() const {
  uint32_t slot = NetSlot();
  if (!slot) return nullptr;
  return &GetNetlist()->Nets()[slot - 1];
}

std::string Pin::GetFullName() const {
  if (Cell* cell = GetCell()) return cell->GetFullName() + "/" + Name();
  Netlist* netlist = GetNetlist();
  Cell* instance = netlist ? netlist->GetInstance() : nullptr;
  if (instance && !IsTopPortPin()) return instance->GetFullName() + "/" + Name();
  return Name();
}

uint8_t Pin::GetDirection() const {
  return port_ ? port_->direction : static_cast<uint8_t>(kDirInternal);
}

namespace {

// The library port and cell of a leaf pin; null for other pins.
LibPort* LibPortOf(const Pin* pin) {
  Cell* cell = pin->GetCell();
  if (!cell || !cell->GetRefLibCell()) return nullptr;
  return dynamic_cast<LibPort*>(pin->GetPort());
}

// A pin that only drives (or only loads) its net stands in its own fan-in
// (fan-out): the cone of an output pin starts at that pin. An inout pin,
// both at once, leaves itself out of both.
const Pin* SkippedSelf(const Pin* pin) {
  return pin->IsNetDriver() && pin->IsNetLoad() ? pin : nullptr;
}

}  // namespace

void Pin::GetFaninPins(std::vector<const Pin*>& pins, HierarchyMode mode) const {
  if (Net* net = GetNet()) CollectNetPins(net, mode, true, SkippedSelf(this), pins);
}
void Pin::GetFanoutPins(std::vector<const Pin*>& pins, HierarchyMode mode) const {
  if (Net* net = GetNet()) CollectNetPins(net, mode, false, SkippedSelf(this), pins);
}
void Pin::GetFaninPins(std::vector<Pin*>& pins, HierarchyMode mode) const {
  if (Net* net = GetNet()) CollectNetPins(net, mode, true, SkippedSelf(this), pins);
}
void Pin::GetFanoutPins(std::vector<Pin*>& pins, HierarchyMode mode) const {
  if (Net* net = GetNet()) CollectNetPins(net, mode, false, SkippedSelf(this), pins);
}

Pin* Pin::GetCurrentDriverPin() const {
  if (IsNetDriver() && !IsHierarchicalPin()) return const_cast<Pin*>(this);
  Net* net = GetNet();
  return net ? net->GetDriverPin() : nullptr;
}

bool Pin::IsConst() const {
  return GetConstValue() >= 0;
}

int Pin::GetConstValue() const {
  Net* net = GetNet();
  if (!net) return -1;
  int value = net->GetConstValue();
  return value == 0 || value == 1 ? value : -1;
}

float Pin::Capacitance(const RiseFall* edge, const MinMax* minmax) const {
  LibPort* port = LibPortOf(this);
  if (!port) return 0.0f;
  return std::max(0.0f, static_cast<float>(port->GetCapacitance(edge, minmax)));
}

Pin* Pin::GetInputOutputPin(bool through_sequential) const {
  LibPort* port = LibPortOf(this);
  if (!port || port->direction != kDirInput) return nullptr;
  Cell* cell = GetCell();
  LibCell* lib_cell = cell->GetRefLibCell();
  if (lib_cell->IsSequentialCell() && !through_sequential) return nullptr;
  for (LibPort* out : lib_cell->GetCellToPorts(port))
    if (Pin* pin = cell->FindPin(out->Name())) return pin;
  return nullptr;
}

std::vector<Pin*> Pin::GetOutputInputPins(bool through_sequential) const {
  std::vector<Pin*> inputs;
  LibPort* port = LibPortOf(this);
  if (!port || !port->IsOutput()) return inputs;
  Cell* cell = GetCell();
  LibCell* lib_cell = cell->GetRefLibCell();
  if (lib_cell->IsSequentialCell() && !through_sequential) return inputs;
  for (uint32_t i = 0; i < cell->PinCount(); ++i) {
    Pin* pin = cell->GetPin(i);
    LibPort* input = dynamic_cast<LibPort*>(pin->GetPort());
    if (!input || input->direction != kDirInput) continue;
    std::vector<LibPort*> outs = lib_cell->GetCellToPorts(input);
    if (std::find(outs.begin(), outs.end(), port) != outs.end()) inputs.push_back(pin);
  }
  return inputs;
}

}  // namespace cdm
