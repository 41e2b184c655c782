// A technology library read from a Liberty file, or the built-in generic
// library (which has no file). Values of cells and pins are SI (the units
// say how to print them); library-level defaults and thresholds are as
// written.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "hostapi/cdm/Iterator.h"
#include "hostapi/cdm/Lib.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibEnums.h"
#include "hostapi/cdm/LibRecords.h"
#include "hostapi/cdm/Selectors.h"
#include "hostapi/cdm/Units.h"

namespace cdm {

class Root;

class LibertyLib : public Lib {
 public:
  explicit LibertyLib(const std::string* name);
  ~LibertyLib() override;

  // The built-in generic library of `root`, whose gates take their areas
  // from the root's default library; null for a technology library.
  Root* GetGenericRoot() const { return generic_root_; }
  void SetGenericRoot(Root* root) { generic_root_ = root; }

  // Identity.
  const std::string& GetDate() const { return date_; }
  const std::string& GetRevision() const { return revision_; }
  const std::string& GetComment() const { return comment_; }
  const std::string& GetInPlaceSwapMode() const { return in_place_swap_mode_; }
  char GetBusOpenChar() const { return bus_open_; }
  char GetBusCloseChar() const { return bus_close_; }
  const std::string& GetBusNamingStyle() const { return bus_naming_style_; }

  // Units.
  const LibUnits& GetUnits() const { return units_; }
  const Unit& GetTimeUnit() const { return units_.time; }
  const Unit& GetCapacitanceUnit() const { return units_.capacitance; }
  const Unit& GetResistanceUnit() const { return units_.resistance; }

  // Operating conditions.
  std::vector<const OperatingConditions*> GetAllOperatingConditions() const;
  const OperatingConditions* GetOperatingConditions(const std::string& name) const;
  const OperatingConditions* GetDefaultOperatingConditions() const;

  // Wire loads.
  std::vector<const WireLoad*> GetAllWireLoads() const;
  const WireLoad* GetWireLoad(const std::string& name) const;
  const WireLoad* GetDefaultWireLoad() const;
  WireLoadMode GetDefaultWireloadMode() const { return wire_load_mode_; }
  // `wire_load_selection` groups by name, and `default_wire_load_selection`.
  const WireLoadSelection* GetWireLoadSelection(const std::string& name) const;
  const WireLoadSelection* GetDefaultWireLoadSelection() const;

  // Thresholds, in percent as written; nominal values and the voltage map
  // as written (the voltage map in the library's voltage unit).
  double GetInputThreshold(const RiseFall* edge) const { return input_threshold_[edge->index()]; }
  double GetOutputThreshold(const RiseFall* edge) const { return output_threshold_[edge->index()]; }
  double GetSlewLowerThreshold(const RiseFall* edge) const { return slew_lower_[edge->index()]; }
  double GetSlewUpperThreshold(const RiseFall* edge) const { return slew_upper_[edge->index()]; }
  double GetSlewDerateFromLibrary() const { return slew_derate_; }
  double GetNomVoltage() const { return nom_voltage_; }
  double GetNomTemperature() const { return nom_temperature_; }
  double GetNomProcess() const { return nom_process_; }
  const std::map<std::string, double>& GetVoltageMap() const { return voltage_map_; }

  // Models.
  DelayModelType GetDelayModelType() const { return delay_model_; }
  PowerModelType GetPowerModelType() const { return power_model_; }
  std::vector<const LibTableTemplate*> GetAllTableTemplates(TemplateClass kind) const;
  const LibTableTemplate* GetTableTemplate(TemplateClass kind, const std::string& name) const;

  // Defaults, in the library's own units as written (report_lib prints
  // them so): -1 when unset.
  double GetDefaultMaxSlew() const { return default_max_slew_; }
  double GetDefaultMaxFanout() const { return default_max_fanout_; }
  double GetDefaultFanoutLoad() const { return default_fanout_load_; }
  double GetDefaultMaxCapacitance() const { return default_max_capacitance_; }
  double GetDefaultCellLeakagePower() const { return default_cell_leakage_power_; }
  double GetDefaultLeakagePowerDensity() const { return default_leakage_power_density_; }
  double GetDefaultInputPinCap() const { return default_input_pin_cap_; }
  // The library's own k-factors; never null (possibly empty).
  const LibScaleFactor* GetDefaultScaleFactorAttrs() const { return &default_scale_factors_; }
  // `scaling_factors` groups by name.
  const std::map<std::string, LibScaleFactor*>& GetScaleFactors() const {
    return scale_factor_map_;
  }
  // `define (...)` attributes by name.
  const std::map<std::string, LibUserDefinedAttr*>& GetUserDefinedAttrs() const {
    return user_attr_map_;
  }

  // Cells, in file order.
  LibCell* GetLibCell(const std::string& name) const;
  Iterator<LibCell>* LibCellIter() const { return new VectorIterator<LibCell>(cells_); }
  const std::vector<LibCell*>& GetLibCells() const { return cells_; }
  uint32_t GetCellCount() const { return static_cast<uint32_t>(cells_.size()); }

 private:
  friend class LibEditor;  // the reader fills the fields
  Root* generic_root_ = nullptr;
  std::string date_;
  std::string revision_;
  std::string comment_;
  std::string in_place_swap_mode_;
  std::string bus_naming_style_ = "%s[%d]";
  char bus_open_ = '[';
  char bus_close_ = ']';
  LibUnits units_;
  std::vector<std::unique_ptr<OperatingConditions>> op_conds_;
  std::string default_op_cond_;
  std::vector<std::unique_ptr<WireLoad>> wire_loads_;
  std::string default_wire_load_;
  WireLoadMode wire_load_mode_ = WireLoadMode::kTop;
  std::vector<std::unique_ptr<WireLoadSelection>> wire_load_selections_;
  std::string default_wire_load_selection_;
  double input_threshold_[2] = {50.0, 50.0};
  double output_threshold_[2] = {50.0, 50.0};
  double slew_lower_[2] = {20.0, 20.0};
  double slew_upper_[2] = {80.0, 80.0};
  double slew_derate_ = 1.0;
  double nom_voltage_ = 0.0;
  double nom_temperature_ = 0.0;
  double nom_process_ = 1.0;
  std::map<std::string, double> voltage_map_;
  DelayModelType delay_model_ = DelayModelType::kTableLookup;
  PowerModelType power_model_ = PowerModelType::kTableLookup;
  std::vector<std::unique_ptr<LibTableTemplate>> templates_;
  double default_max_slew_ = -1.0;
  double default_max_fanout_ = -1.0;
  double default_fanout_load_ = -1.0;
  double default_max_capacitance_ = -1.0;
  double default_cell_leakage_power_ = -1.0;
  double default_leakage_power_density_ = -1.0;
  double default_input_pin_cap_ = -1.0;
  LibScaleFactor default_scale_factors_{""};
  std::vector<std::unique_ptr<LibScaleFactor>> scale_factors_;
  std::map<std::string, LibScaleFactor*> scale_factor_map_;
  std::vector<std::unique_ptr<LibUserDefinedAttr>> user_attrs_;
  std::map<std::string, LibUserDefinedAttr*> user_attr_map_;
  std::vector<std::unique_ptr<LibCell>> owned_cells_;
  std::vector<LibCell*> cells_;
  std::unordered_map<std::string, LibCell*> cell_index_;
};

}  // namespace cdm
