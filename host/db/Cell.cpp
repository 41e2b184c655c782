#include "hostapi/cdm/Cell.h"

#include "db/Netlist.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Pin.h"

namespace cdm {

uint32_t Cell::Index() const {
  return netlist_->IndexOf(this);
}

const std::string& Cell::MaterializeName() const {
  const std::string& name = netlist_->CellNameString(Index());
  SetName(&name);
  return name;
}

std::string Cell::GetFullName() const {
  std::string_view local = netlist_->CellName(Index());
  Cell* parent = netlist_->GetInstance();
  if (!parent) return std::string(local);
  std::string full = parent->GetFullName();
  full += '/';
  full += local;
  return full;
}

Design* Cell::GetRefDesign() const {
  return Kind() == kDesign ? static_cast<Design*>(ref_) : nullptr;
}

LibCell* Cell::GetRefLibCell() const {
  return Kind() == kLib ? static_cast<LibCell*>(ref_) : nullptr;
}

const std::string& Cell::GetRefName() const {
  return ref_ ? ref_->Name() : EmptyName();
}

Iterator<Pin>* Cell::PinIter() const {
  std::vector<Pin*> pins;
  uint32_t count = PinCount();
  pins.reserve(count);
  for (uint32_t i = 0; i < count; ++i) pins.push_back(netlist_->PinAt(first_pin_ + i));
  return new VectorIterator<Pin>(std::move(pins));
}

Pin* Cell::FindPin(const std::string& name) const {
  uint32_t count = PinCount();
  for (uint32_t i = 0; i < count; ++i) {
    Pin* pin = netlist_->PinAt(first_pin_ + i);
    if (pin->Name() == name) return pin;
  }
  return nullptr;
}

uint32_t Cell::PinCount() const {
  return netlist_->CellPinCount(Index());
}

Pin* Cell::GetPin(uint32_t index) const {
  return index < PinCount() ? netlist_->PinAt(first_pin_ + index) : nullptr;
}

bool Cell::IsConstCell() const {
  LibCell* lib_cell = GetRefLibCell();
  return lib_cell && lib_cell->GetConstOutputValue() >= 0;
}

bool Cell::IsGTechCell() const {
  LibCell* lib_cell = GetRefLibCell();
  return lib_cell && lib_cell->GetLibertyLib() == DbManager::GetGenericLib();
}

Netlist* Cell::GetChildNetlist() const {
  return Kind() == kDesign ? netlist_->ChildOf(this) : nullptr;
}

}  // namespace cdm
