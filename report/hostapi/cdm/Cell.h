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
class NetlistEditor;
class Pin;
class Reference;

// What a cell refers to when link found neither a module nor a library
// cell of its name (and, before link, what every cell refers to): only the
// name, and the netlist file it was written in as its owner. Neither
// IsDesign nor IsLibRef.
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
  Cell() = default;

  // Path of the enclosing instances and the local name: "u_core/u_alu/U12".
  std::string GetFullName() const override;

  // What the cell instantiates: a Design, a LibCell, or an
  // UnresolvedReference (before link, and after it when nothing of the
  // name was found). Never null for a cell read from a netlist.
  Reference* GetRef() const { return ref_; }
  Design* GetRefDesign() const;
  LibCell* GetRefLibCell() const;
  // The reference name as the netlist writes it (also when unresolved).
  const std::string& GetRefName() const;

  bool IsLeaf() const { return Kind() != kDesign; }
  bool IsHierarchical() const { return Kind() == kDesign; }
  bool IsUnresolved() const { return Kind() == kUnresolved; }
  // An instance of a tie cell: a library cell whose outputs are all constant.
  bool IsConstCell() const;
  // An instance of a cell of the generic library.
  bool IsGTechCell() const;

  Iterator<Pin>* PinIter() const;  // deleted by the caller
  Pin* FindPin(const std::string& name) const;
  uint32_t PinCount() const;
  Pin* GetPin(uint32_t index) const;

  // The netlist the cell is in, and for a hierarchical cell of the
  // elaborated design the netlist of its instance (null otherwise).
  Netlist* GetNetlist() const { return netlist_; }
  Netlist* GetChildNetlist() const;

 private:
  friend class Netlist;
  friend class NetlistEditor;

  enum RefKind : uint32_t { kUnresolved = 0, kLib = 1, kDesign = 2 };
  static constexpr uint32_t kNameMask = (1u << 30) - 1;
  RefKind Kind() const { return static_cast<RefKind>(name_kind_ >> 30); }
  uint32_t Index() const;
  const std::string& MaterializeName() const override;

  Netlist* netlist_ = nullptr;
  Reference* ref_ = nullptr;
  uint32_t name_kind_ = 0;  // offset of the name in the netlist's pool; kind in the top bits
  uint32_t first_pin_ = 0;  // in the netlist's pin array
};

}  // namespace cdm
