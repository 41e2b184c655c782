// Walks over a design that reach below its direct contents. Each is an
// object the caller creates and deletes; it gathers what it walks when made.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "hostapi/cdm/Iterator.h"

namespace cdm {

class Cell;
class Design;
class Net;
class Netlist;
class Pin;

// Cells of a design that pass `predicate`. `deep`: also the cells below
// hierarchical cells (each after its parent), with their full path names.
class DesignCellIterator : public Iterator<Cell> {
 public:
  DesignCellIterator(const Design* design, bool deep,
                     const std::function<bool(const Cell*)>& predicate);
  bool HasNext() override { return ahead_ != nullptr; }
  Cell* Next() override;

 private:
  void Advance();
  struct Frame {
    Netlist* netlist;
    uint32_t next;
  };
  std::vector<Frame> stack_;
  std::function<bool(const Cell*)> predicate_;
  bool deep_;
  Cell* ahead_ = nullptr;
};

// Pins of a design that pass `predicate`: the design's port pins, then the
// pins of each cell in order. `deep`: also the pins below hierarchical
// cells (the port pins of each lower netlist, then its cells' pins).
class AllPinIterator : public Iterator<Pin> {
 public:
  AllPinIterator(const Design* design, bool deep, const std::function<bool(const Pin*)>& predicate);
  bool HasNext() override { return ahead_ != nullptr; }
  Pin* Next() override;

 private:
  void Advance();
  struct Frame {
    Netlist* netlist;
    uint32_t next_pin;   // in the netlist's pin array
    uint32_t next_cell;  // the cell whose pins come after the current run
    uint32_t run_end;    // end of the current run of pins
  };
  std::vector<Frame> stack_;
  std::function<bool(const Pin*)> predicate_;
  bool deep_;
  Pin* ahead_ = nullptr;
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
