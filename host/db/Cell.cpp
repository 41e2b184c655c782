#include "hostapi/cdm/Cell.h"

#include "db/Netlist.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Pin.h"

namespace cdm {

Cell::Cell(const std::string* name, const std::string* ref_name, Netlist* netlist)
    : Object(name), ref_name_(ref_name ? ref_name : &EmptyName()), netlist_(netlist) {}

Cell::~Cell() = default;

std::string Cell::GetFullName() const {
  Cell* parent = netlist_ ? netlist_->GetInstance() : nullptr;
  if (!parent) return Name();
  return parent->GetFullName() + "/" + Name();
}

void Cell::Bind(Reference* ref, Design* design, LibCell* lib_cell, uint32_t pin_count) {
  ref_ = ref;
  design_ = design;
  lib_cell_ = lib_cell;
  child_ = nullptr;
  pin_count_ = pin_count;
  pins_ = pin_count ? std::make_unique<Pin[]>(pin_count) : nullptr;
}

Iterator<Pin>* Cell::PinIter() const {
  std::vector<Pin*> pins;
  pins.reserve(pin_count_);
  for (uint32_t i = 0; i < pin_count_; ++i) pins.push_back(&pins_[i]);
  return new VectorIterator<Pin>(std::move(pins));
}

Pin* Cell::FindPin(const std::string& name) const {
  for (uint32_t i = 0; i < pin_count_; ++i)
    if (pins_[i].Name() == name) return &pins_[i];
  return nullptr;
}

Pin* Cell::GetPin(uint32_t index) const {
  return index < pin_count_ ? &pins_[index] : nullptr;
}

}  // namespace cdm
