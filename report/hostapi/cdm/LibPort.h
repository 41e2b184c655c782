// A pin (or bus) of a library cell. Capacitances are in farads, kept to
// double precision so that divided by the library's unit they give back the
// number the library wrote; a value the library leaves out reads -1.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "hostapi/cdm/LibBoolFuncExpr.h"
#include "hostapi/cdm/LibPower.h"
#include "hostapi/cdm/LibTiming.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/cdm/Selectors.h"

namespace cdm {

class LibCell;

class LibPort : public Port {
 public:
  LibPort(const std::string* name, uint8_t port_direction, LibCell* cell)
      : Port(name, port_direction), cell_(cell) {}

  LibCell* GetLibCell() const { return cell_; }

  // `capacitance`; -1 when unset.
  double GetCapacitance() const { return capacitance_; }
  // `rise_capacitance` / `fall_capacitance` for max, the ends of their
  // `*_capacitance_range` for min (max too when a range is given); each
  // falls back to the plain capacitance.
  double GetCapacitance(const RiseFall* edge, const MinMax* minmax) const;
  // `max_capacitance` / `min_capacitance`; -1 when unset.
  double GetCapacitanceLimits(const MinMax* minmax) const { return cap_limit_[minmax->index()]; }
  double GetMaxTransition() const { return max_transition_; }  // seconds, -1 unset
  // `max_fanout` and `fanout_load`; -1 when unset.
  double GetMaxFanout() const { return max_fanout_; }
  double GetFanoutLoad() const { return fanout_load_; }

  // Null when the pin has none.
  const LibBoolFuncExpr* GetFunction() const { return function_.get(); }
  const LibBoolFuncExpr* GetStateFunction() const { return state_function_.get(); }
  const LibBoolFuncExpr* GetThreeState() const { return three_state_.get(); }
  const std::string& GetRelatedPowerPin() const { return related_power_pin_; }
  const std::string& GetRelatedGroundPin() const { return related_ground_pin_; }
  bool IsClock() const { return is_clock_; }

  const std::vector<std::shared_ptr<LibTimingAttr>>& GetTimingAttrs() const { return timing_; }
  const std::vector<std::shared_ptr<LibPowerAttr>>& GetPowerAttrs() const { return power_; }

  // A bus: its bit ports, most significant as declared first.
  bool IsBus() const { return !members_.empty(); }
  const std::vector<LibPort*>& GetMembers() const { return members_; }

 private:
  friend class LibEditor;  // the reader fills the fields
  LibCell* cell_;
  double capacitance_ = -1.0;
  double edge_cap_[2] = {-1.0, -1.0};                           // rise, fall
  double edge_cap_range_[2][2] = {{-1.0, -1.0}, {-1.0, -1.0}};  // [edge][min/max]
  double cap_limit_[2] = {-1.0, -1.0};                          // min, max
  double max_transition_ = -1.0;
  double max_fanout_ = -1.0;
  double fanout_load_ = -1.0;
  bool is_clock_ = false;
  std::unique_ptr<LibBoolFuncExpr> function_;
  std::unique_ptr<LibBoolFuncExpr> state_function_;
  std::unique_ptr<LibBoolFuncExpr> three_state_;
  std::string related_power_pin_;
  std::string related_ground_pin_;
  std::vector<std::shared_ptr<LibTimingAttr>> timing_;
  std::vector<std::shared_ptr<LibPowerAttr>> power_;
  std::vector<LibPort*> members_;
};

// A power or ground pin of a cell (`pg_pin`).
class LibPgPort : public Object {
 public:
  LibPgPort(const std::string* name, std::string voltage, PgType pg_type)
      : Object(name), voltage_name(std::move(voltage)), type(pg_type) {}
  std::string voltage_name;
  PgType type;
};

}  // namespace cdm
