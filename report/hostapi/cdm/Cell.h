// An instance inside a design: of a library cell, of a design (a
// hierarchical cell), or of a reference that link could not resolve.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "hostapi/cdm/Iterator.h"
#include "hostapi/cdm/Object.h"
#include "hostapi/cdm/Reference.h"

namespace cdm {

class Design;
class LibCell;
class Netlist;
class Pin;
class Reference;

// What a cell refers to when link found neither a module nor a library
// cell of its name: only the name, and the netlist file it was written in
// as its owner. Neither IsDesign nor IsLibRef.
class UnresolvedReference : public Reference {
 public:
  UnresolvedReference(const std::string* name, Object* owner) : Reference(name), owner_(owner) {}
  bool IsDesign() const override { return false; }
  bool IsLibRef() const override { return false; }
  Object* Owner() const { return owner_; }

 private:
  Object* owner_;
};

class Cell : public Object {
 public:
  Cell(const std::string* name, const std::string* ref_name, Netlist* netlist);
  ~Cell() override;

  // Path of the enclosing instances and the local name: "u_core/u_alu/U12".
  std::string GetFullName() const override;

  // What the cell instantiates: a Design, a LibCell, or after link for an
  // unresolved reference an UnresolvedReference; null only before link.
  Reference* GetRef() const { return ref_; }
  Design* GetRefDesign() const { return design_; }
  LibCell* GetRefLibCell() const { return lib_cell_; }
  // The reference name as the netlist writes it (also when unresolved).
  const std::string& GetRefName() const { return *ref_name_; }

  bool IsLeaf() const { return GetRefDesign() == nullptr; }
  bool IsHierarchical() const { return GetRefDesign() != nullptr; }
  bool IsUnresolved() const { return design_ == nullptr && lib_cell_ == nullptr; }
  // An instance of a tie cell: a library cell whose outputs are all constant.
  bool IsConstCell() const;
  // An instance of a cell of the generic library.
  bool IsGTechCell() const;

  Iterator<Pin>* PinIter() const;  // deleted by the caller
  Pin* FindPin(const std::string& name) const;
  uint32_t PinCount() const { return pin_count_; }
  Pin* GetPin(uint32_t index) const;

  // The netlist the cell is in, and for a hierarchical cell the netlist
  // elaborated below it (null before elaboration).
  Netlist* GetNetlist() const { return netlist_; }
  Netlist* GetChildNetlist() const { return child_; }

  // Building (the linker only).
  // Binds the reference (one of `design`, `lib_cell`, or neither) and makes
  // `pin_count` fresh, unconnected pins.
  void Bind(Reference* ref, Design* design, LibCell* lib_cell, uint32_t pin_count);
  Pin* MutablePins() { return pins_.get(); }
  void SetChildNetlist(Netlist* child) { child_ = child; }

 private:
  const std::string* ref_name_;
  Reference* ref_ = nullptr;
  Design* design_ = nullptr;
  LibCell* lib_cell_ = nullptr;
  Netlist* netlist_;
  Netlist* child_ = nullptr;
  std::unique_ptr<Pin[]> pins_;
  uint32_t pin_count_ = 0;
};

}  // namespace cdm
