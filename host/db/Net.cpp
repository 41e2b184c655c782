#include "hostapi/cdm/Net.h"

#include "db/Elaboration.h"
#include "db/FlatNet.h"
#include "db/Netlist.h"
#include "hostapi/cdm/Pin.h"

namespace cdm {

Pin* NetPinRange::iterator::operator*() const {
  return base_ + *at_;
}

Pin* NetPinRange::operator[](size_t i) const {
  return base_ + first_[i];
}

uint32_t Net::Index() const {
  return netlist_->IndexOf(this);
}

const std::string& Net::MaterializeName() const {
  const std::string& name = netlist_->NetNameString(Index());
  SetName(&name);
  return name;
}

std::string Net::GetFullName() const {
  std::string full = netlist_->PathPrefix();
  full += netlist_->NetName(Index());
  return full;
}

NetPinRange Net::Pins() const {
  return netlist_->NetPins(Index());
}

Pin* Net::GetDriverPin() const {
  Elaboration* elaboration = flat_id_ ? netlist_->GetElaboration() : nullptr;
  if (elaboration) {
    if (!elaboration->FlatNet(flat_id_).driver_count) return nullptr;
    return elaboration->VertexPin(elaboration->FlatNetDrivers(flat_id_)[0]);
  }
  Pin* driver = nullptr;
  WalkFlatNet(this, false, [&](Pin* pin) {
    if (!driver && pin->IsNetDriver()) driver = pin;
  });
  return driver;
}

int Net::GetConstValue() const {
  Elaboration* elaboration = flat_id_ ? netlist_->GetElaboration() : nullptr;
  if (elaboration) return elaboration->FlatNet(flat_id_).const_value;
  int value = -1;
  WalkFlatSegments(this, [&](const Net* segment) {
    if (value < 0 && segment->LocalConstValue() >= 0) value = segment->LocalConstValue();
  });
  return value;
}

void Net::GetFaninPins(std::vector<const Pin*>& pins, HierarchyMode mode) const {
  CollectNetPins(this, mode, true, nullptr, pins);
}
void Net::GetFanoutPins(std::vector<const Pin*>& pins, HierarchyMode mode) const {
  CollectNetPins(this, mode, false, nullptr, pins);
}
void Net::GetFaninPins(std::vector<Pin*>& pins, HierarchyMode mode) const {
  CollectNetPins(this, mode, true, nullptr, pins);
}
void Net::GetFanoutPins(std::vector<Pin*>& pins, HierarchyMode mode) const {
  CollectNetPins(this, mode, false, nullptr, pins);
}

}  // namespace cdm
