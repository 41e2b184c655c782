#include "hostapi/cdm/Net.h"

#include "db/FlatNet.h"
#include "db/Netlist.h"
#include "hostapi/cdm/Pin.h"

namespace cdm {

std::string Net::GetFullName() const {
  return netlist_ ? netlist_->PathPrefix() + Name() : Name();
}

Pin* Net::GetDriverPin() const {
  Pin* driver = nullptr;
  WalkFlatNet(this, false, [&](Pin* pin) {
    if (!driver && pin->IsNetDriver()) driver = pin;
  });
  return driver;
}

int Net::GetConstValue() const {
  int value = -1;
  WalkFlatSegments(this, [&](const Net* segment) {
    if (value < 0 && segment->const_value_ >= 0) value = segment->const_value_;
  });
  return value;
}

namespace {

template <class PinPtr>
void CollectPins(const Net* net, HierarchyMode mode, bool drivers, const Pin* skip,
                 std::vector<PinPtr>& pins) {
  auto take = [&](Pin* pin) {
    if (pin == skip) return;
    if (drivers ? pin->IsNetDriver() : pin->IsNetLoad()) pins.push_back(pin);
  };
  if (mode == kHierLevel) {
    for (Pin* pin : net->Pins()) take(pin);
  } else {
    WalkFlatNet(net, false, take);
  }
}

}  // namespace

void Net::GetFaninPins(std::vector<const Pin*>& pins, HierarchyMode mode) const {
  CollectPins(this, mode, true, nullptr, pins);
}
void Net::GetFanoutPins(std::vector<const Pin*>& pins, HierarchyMode mode) const {
  CollectPins(this, mode, false, nullptr, pins);
}
void Net::GetFaninPins(std::vector<Pin*>& pins, HierarchyMode mode) const {
  CollectPins(this, mode, true, nullptr, pins);
}
void Net::GetFanoutPins(std::vector<Pin*>& pins, HierarchyMode mode) const {
  CollectPins(this, mode, false, nullptr, pins);
}

// Pins ask the same of their net, leaving themselves out.
void CollectNetPins(const Net* net, HierarchyMode mode, bool drivers, const Pin* skip,
                    std::vector<const Pin*>& pins) {
  CollectPins(net, mode, drivers, skip, pins);
}
void CollectNetPins(const Net* net, HierarchyMode mode, bool drivers, const Pin* skip,
                    std::vector<Pin*>& pins) {
  CollectPins(net, mode, drivers, skip, pins);
}

}  // namespace cdm
