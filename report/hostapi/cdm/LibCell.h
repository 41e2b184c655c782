// A cell of a technology library: what a design cell instantiates when it
// is a leaf.
#pragma once

#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "hostapi/cdm/Iterator.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibPower.h"
#include "hostapi/cdm/LibRecords.h"
#include "hostapi/cdm/LibStateTable.h"
#include "hostapi/cdm/LibTiming.h"
#include "hostapi/cdm/Reference.h"

namespace cdm {

class LibertyLib;

class LibCell : public Reference {
 public:
  LibCell(const std::string* name, LibertyLib* lib);
  ~LibCell() override;

  bool IsDesign() const override { return false; }
  bool IsLibRef() const override { return true; }

  // The owning library (the generic library for a generic gate).
  LibertyLib* GetLibertyLib() const { return lib_; }

  // Of one instance. A gate of the generic library has no area of its own:
  // it reads the estimate that the default library gives at this moment
  // (GenericGateArea), the same for every caller until the libraries or
  // the design change.
  virtual float GetArea() const;
  bool DontTouch() const { return dont_touch_; }
  bool DontUse() const { return dont_use_; }
  const std::string& GetFootprint() const { return footprint_; }
  // The footprint, else the name without its drive-strength suffix.
  std::string GetCellTypeName() const;
  double GetDriveStrength() const { return drive_strength_; }                 // 0 when unset
  double GetCellLeakagePower() const { return cell_leakage_power_; }          // watts, 0 unset
  const LibScaleFactor* GetScalingFactor() const { return scaling_factor_; }  // may be null

  // Classifiers.
  bool IsSequentialCell() const { return !sequentials_.empty() || state_table_ != nullptr; }
  bool IsMemory() const { return is_memory_; }
  bool IsMacro() const { return is_macro_; }
  // `pad_cell : true`: a cell of the chip's boundary.
  bool IsPad() const { return is_pad_; }
  // No function on any pin and no timing group: a cell the tools cannot see into.
  bool IsBlackBox() const;
  bool IsBuffer() const { return one_input_kind_ == 1; }
  bool IsInverter() const { return one_input_kind_ == 2; }
  bool IsClockGate() const { return !clock_gating_.empty() || is_clock_gating_cell_; }
  bool IsClockGateLatchPosedge() const;
  bool IsClockGateLatchNegedge() const;
  bool IsClockGateOther() const {
    return IsClockGate() && !IsClockGateLatchPosedge() && !IsClockGateLatchNegedge();
  }
  // `clock_gating_integrated_cell` as written, empty when absent.
  const std::string& GetClockGatingIntegratedCell() const { return clock_gating_; }
  // A tie cell: every output has the constant function 0 (value 0) or 1
  // (value 1); -1 otherwise.
  int GetConstOutputValue() const { return const_value_; }

  // Timing.
  int GetTimingArcSetCout() const { return static_cast<int>(arc_sets_.size()); }
  const std::vector<LibTimingArcSet*>& GetTimingArcSets() const { return arc_set_ptrs_; }
  // For an input port: the outputs it reaches through a timing arc or a
  // function, in port order.
  std::vector<LibPort*> GetCellToPorts(LibPort* port) const;

  // Power.
  const std::vector<std::shared_ptr<LibPowerAttr>>& GetInternalPowers() const {
    return internal_powers_;
  }
  const std::vector<std::unique_ptr<LibLeakagePower>>& GetLeakagePowers() const { return leakage_; }
  bool HasLeakagePowers() const { return !leakage_.empty(); }

  // Sequential behaviour.
  const LibStateTable* GetStateTable() const { return state_table_.get(); }
  const std::vector<std::unique_ptr<LibSequential>>& GetSequentials() const { return sequentials_; }
  // The ff / latch group that declares `port` as one of its two state ports.
  const LibSequential* GetSequentialFromOutputPort(const LibPort* port) const;
  // The table of the ff / latch group behind `outputs`: the ports come in
  // through the group's first state port, or its second when `swapped`.
  void PrintStateTable(std::vector<LibPort*> outputs, const std::vector<LibPort*>& second_outputs,
                       std::ostream& os, bool full, bool swapped) const;

  // Ports: pins and bus bits in file order (internal state ports of ff /
  // latch groups at the end), buses, power and ground pins.
  const std::vector<LibPort*>& GetPorts() const { return ports_; }
  LibPort* FindPort(const std::string& name) const;
  Iterator<LibPort>* LibPortIter() const { return new VectorIterator<LibPort>(ports_); }
  Iterator<LibPort>* LibPortBusIter() const { return new VectorIterator<LibPort>(buses_); }
  Iterator<LibPgPort>* LibPgPortIter() const;

  // User-defined attributes of the cell, by name, as written.
  const std::vector<std::pair<std::string, std::string>>& GetUserAttributes() const {
    return user_attrs_;
  }

 private:
  friend class LibEditor;  // the reader fills the fields
  LibertyLib* lib_;
  float area_ = 0.0f;
  mutable float estimated_area_ = 0.0f;  // generic gates: the estimate
  mutable uint64_t estimated_at_ = 0;    // and the root generation it was made at
  bool dont_touch_ = false;
  bool dont_use_ = false;
  bool is_memory_ = false;
  bool is_macro_ = false;
  bool is_pad_ = false;
  bool is_clock_gating_cell_ = false;
  int one_input_kind_ = 0;  // 1 buffer, 2 inverter
  int const_value_ = -1;
  std::string footprint_;
  std::string clock_gating_;
  double drive_strength_ = 0.0;
  double cell_leakage_power_ = 0.0;
  const LibScaleFactor* scaling_factor_ = nullptr;
  std::vector<std::unique_ptr<LibPort>> owned_ports_;
  std::vector<LibPort*> ports_;
  std::vector<LibPort*> buses_;
  std::vector<std::unique_ptr<LibPgPort>> pg_ports_;
  std::vector<std::unique_ptr<LibTimingArcSet>> arc_sets_;
  std::vector<LibTimingArcSet*> arc_set_ptrs_;
  std::vector<std::shared_ptr<LibPowerAttr>> internal_powers_;
  std::vector<std::unique_ptr<LibLeakagePower>> leakage_;
  std::unique_ptr<LibStateTable> state_table_;
  std::vector<std::unique_ptr<LibSequential>> sequentials_;
  std::vector<std::pair<std::string, std::string>> user_attrs_;
};

// Orders library cells by name.
struct LibCellNameComparer {
  bool operator()(const LibCell* a, const LibCell* b) const { return a->Name() < b->Name(); }
};

}  // namespace cdm
