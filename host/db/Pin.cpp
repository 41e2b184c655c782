#include "hostapi/cdm/Pin.h"

#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Port.h"

namespace cdm {

void CollectNetPins(const Net* net, HierarchyMode mode, bool drivers, const Pin* skip,
                    std::vector<const Pin*>& pins);
void CollectNetPins(const Net* net, HierarchyMode mode, bool drivers, const Pin* skip,
                    std::vector<Pin*>& pins);

void Pin::Init(Port* port, Cell* cell, Netlist* netlist, uint8_t flags) {
  port_ = port;
  cell_ = cell;
  netlist_ = cell ? nullptr : netlist;
  flags_ = flags;
  net_ = nullptr;
  SetName(port ? &port->Name() : nullptr);
}

std::string Pin::GetFullName() const {
  if (cell_) return cell_->GetFullName() + "/" + Name();
  Cell* instance = netlist_ ? netlist_->GetInstance() : nullptr;
  if (instance && !IsTopPortPin()) return instance->GetFullName() + "/" + Name();
  return Name();
}

Netlist* Pin::GetNetlist() const {
  return cell_ ? cell_->GetNetlist() : netlist_;
}

uint8_t Pin::GetDirection() const {
  return port_ ? port_->direction : static_cast<uint8_t>(kDirInternal);
}

namespace {

// A pin that only drives (or only loads) its net stands in its own fan-in
// (fan-out): the cone of an output pin starts at that pin. An inout pin,
// both at once, leaves itself out of both.
const Pin* SkippedSelf(const Pin* pin) {
  return pin->IsNetDriver() && pin->IsNetLoad() ? pin : nullptr;
}

}  // namespace

void Pin::GetFaninPins(std::vector<const Pin*>& pins, HierarchyMode mode) const {
  if (net_) CollectNetPins(net_, mode, true, SkippedSelf(this), pins);
}
void Pin::GetFanoutPins(std::vector<const Pin*>& pins, HierarchyMode mode) const {
  if (net_) CollectNetPins(net_, mode, false, SkippedSelf(this), pins);
}
void Pin::GetFaninPins(std::vector<Pin*>& pins, HierarchyMode mode) const {
  if (net_) CollectNetPins(net_, mode, true, SkippedSelf(this), pins);
}
void Pin::GetFanoutPins(std::vector<Pin*>& pins, HierarchyMode mode) const {
  if (net_) CollectNetPins(net_, mode, false, SkippedSelf(this), pins);
}

Pin* Pin::GetCurrentDriverPin() const {
  if (IsNetDriver() && !IsHierarchicalPin()) return const_cast<Pin*>(this);
  return net_ ? net_->GetDriverPin() : nullptr;
}

bool Pin::IsConst() const {
  return GetConstValue() >= 0;
}

int Pin::GetConstValue() const {
  if (!net_) return -1;
  int value = net_->GetConstValue();
  return value == 0 || value == 1 ? value : -1;
}

}  // namespace cdm
