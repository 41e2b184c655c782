// What drives an input port from outside the design: set_drive (a drive
// resistance, ohms), set_input_transition (a transition, seconds) and
// set_driving_cell (a library cell), each per edge and min/max.
#pragma once

#include <memory>
#include <optional>

#include "hostapi/cdm/Selectors.h"

namespace cdm {
class LibCell;
class LibPort;
class LibertyLib;
}  // namespace cdm

namespace sta::sdc {

// One set_driving_cell: the library cell, the pin of it that drives the
// port, and the pin its input transition is given at.
class DriveCell {
 public:
  cdm::LibCell* getLibCell() const { return lib_cell_; }
  cdm::LibertyLib* getLibrary() const;
  // -from_pin: the input the arc starts at; null when not given.
  cdm::LibPort* getFromPort() const { return from_port_; }
  // -pin: the output that drives the port; null when not given (the cell's
  // one output is meant).
  cdm::LibPort* getToPort() const { return to_port_; }
  // -multiply_by (1 when not given), -dont_scale, -no_design_rule.
  float getMultiplyBy() const { return multiply_by_; }
  bool getDontScale() const { return dont_scale_; }
  bool getNoDesignRule() const { return no_design_rule_; }
  // -input_transition_rise / -input_transition_fall: the transition at the
  // cell's input, seconds; unset when not given.
  std::optional<float> getInputTransition(const cdm::RiseFall* edge) const {
    return input_transition_[edge->index()];
  }

 private:
  friend class SdcStore;  // the store fills the fields
  cdm::LibCell* lib_cell_ = nullptr;
  cdm::LibPort* from_port_ = nullptr;
  cdm::LibPort* to_port_ = nullptr;
  float multiply_by_ = 1.0f;
  bool dont_scale_ = false;
  bool no_design_rule_ = false;
  std::optional<float> input_transition_[2];
};

class InputDrive {
 public:
  // set_drive. `value` and `exists` are written only when a value is set.
  void driveResistance(const cdm::RiseFall* edge, const cdm::MinMax* minmax, float& value,
                       bool& exists) const;
  bool hasDriveResistance(const cdm::RiseFall* edge, const cdm::MinMax* minmax) const;
  // set_input_transition. `value` and `exists` are written only when a
  // value is set.
  void getSlew(const cdm::RiseFall* edge, const cdm::MinMax* minmax, float& value,
               bool& exists) const;
  // set_driving_cell; null when none is set for the edge and min/max.
  const DriveCell* getDriveCell(const cdm::RiseFall* edge, const cdm::MinMax* minmax) const;
  // The driving cell's -multiply_by; 1 without a driving cell.
  float getDriveCellFactor(const cdm::RiseFall* edge, const cdm::MinMax* minmax) const;
  // The driving cell's -dont_scale and -no_design_rule; false without one.
  bool getDriveCellDontScale(const cdm::RiseFall* edge, const cdm::MinMax* minmax) const;
  bool getDriveCellNoDR(const cdm::RiseFall* edge, const cdm::MinMax* minmax) const;

  // Some edge and min/max has a driving cell.
  bool hasDriveCell() const;

  // The records as they stand.
  const cdm::RiseFallMinMax& getDriveResistances() const { return resistance_; }
  const cdm::RiseFallMinMax& getSlews() const { return slew_; }

 private:
  friend class SdcStore;  // the store fills the fields
  static int Slot(const cdm::RiseFall* edge, const cdm::MinMax* minmax) {
    return edge->index() * 2 + minmax->index();
  }
  cdm::RiseFallMinMax resistance_;
  cdm::RiseFallMinMax slew_;
  // Per edge and min/max; one command's cell is shared by the slots it set.
  std::shared_ptr<const DriveCell> cells_[4];
};

}  // namespace sta::sdc
