// Walks over a design that reach below its direct contents. Each is an
// object the caller creates and deletes; it gathers what it walks when made.
#pragma once

#include <functional>
#include <vector>

#include "hostapi/cdm/Iterator.h"

namespace cdm {

class Cell;
class Design;
class Net;
class Pin;

// Cells of a design that pass `predicate`. `deep`: also the cells below
// hierarchical cells (each after its parent), with their full path names.
class DesignCellIterator : public Iterator<Cell> {
 public:
  DesignCellIterator(const Design* design, bool deep,
                     const std::function<bool(const Cell*)>& predicate);
  bool HasNext() override { return next_ < cells_.size(); }
  Cell* Next() override { return next_ < cells_.size() ? cells_[next_++] : nullptr; }

 private:
  std::vector<Cell*> cells_;
  size_t next_ = 0;
};

// Pins of a design that pass `predicate`: the design's port pins, then the
// pins of each cell in order. `deep`: also the pins below hierarchical
// cells (the port pins of each lower netlist, then its cells' pins).
class AllPinIterator : public Iterator<Pin> {
 public:
  AllPinIterator(const Design* design, bool deep, const std::function<bool(const Pin*)>& predicate);
  bool HasNext() override { return next_ < pins_.size(); }
  Pin* Next() override { return next_ < pins_.size() ? pins_[next_++] : nullptr; }

 private:
  std::vector<Pin*> pins_;
  size_t next_ = 0;
};

// Pins of a net that pass `predicate`. Without `with_hierarchical`: the
// leaf pins and top port pins of the flat net, through hierarchy. With it:
// also every hierarchical pin and lower port pin the flat net passes.
class NetConnIter : public Iterator<Pin> {
 public:
  NetConnIter(const Net* net, bool with_hierarchical,
              const std::function<bool(const Pin*)>& predicate);
  bool HasNext() override { return next_ < pins_.size(); }
  Pin* Next() override { return next_ < pins_.size() ? pins_[next_++] : nullptr; }

 private:
  std::vector<Pin*> pins_;
  size_t next_ = 0;
};

}  // namespace cdm
