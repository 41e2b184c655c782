// Internal and leakage power of library cells.
#pragma once

#include <memory>
#include <string>

#include "hostapi/cdm/LibBoolFuncExpr.h"
#include "hostapi/cdm/LibTable.h"
#include "hostapi/cdm/Selectors.h"

namespace cdm {

class LibPort;
struct LibUnits;

// The energy table of one edge of an internal power group (or of both,
// for a `power` table that serves rise and fall alike).
class LibPowerModel {
 public:
  explicit LibPowerModel(std::unique_ptr<LibTable> table) : table_(std::move(table)) {}
  const LibTable* GetTable() const { return table_.get(); }
  // Readable text of the table, ending in a newline.
  std::string DumpSelf(const RiseFallBoth* edges, const LibUnits& units) const;

 private:
  std::unique_ptr<LibTable> table_;
};

// One `internal_power` group of a pin.
class LibPowerAttr {
 public:
  // The related pins as written, "undefined" when none.
  const std::string& GetRelatedPinsStr() const { return related_pins_; }
  const std::vector<LibPort*>& GetRelatedPorts() const { return related_ports_; }
  const LibBoolFuncExpr* GetWhen() const { return &when_; }  // never null
  const std::string& GetWhenStr() const { return when_.GetFuncStr(); }
  bool HasRiseModel() const { return models_[0] != nullptr; }
  bool HasFallModel() const { return models_[1] != nullptr; }
  // Rise and fall give the same object for a `power` table.
  const LibPowerModel* GetLibPowerModel(const RiseFall* edge) const {
    return models_[edge->index()].get();
  }

  void SetRelatedPins(std::string text, std::vector<LibPort*> ports) {
    related_pins_ = std::move(text);
    related_ports_ = std::move(ports);
  }
  void SetWhen(LibBoolFuncExpr when) { when_ = std::move(when); }
  void SetModel(const RiseFall* edge, std::shared_ptr<LibPowerModel> model) {
    models_[edge->index()] = std::move(model);
  }

 private:
  std::string related_pins_ = "undefined";
  std::vector<LibPort*> related_ports_;
  LibBoolFuncExpr when_;
  std::shared_ptr<LibPowerModel> models_[2];
};

// One `leakage_power` group of a cell; the value in watts.
class LibLeakagePower {
 public:
  LibLeakagePower(double value, LibBoolFuncExpr when) : value_(value), when_(std::move(when)) {}
  double GetValue() const { return value_; }
  const LibBoolFuncExpr* GetWhen() const { return &when_; }  // never null
  const std::string& GetWhenStr() const { return when_.GetFuncStr(); }

 private:
  double value_;
  LibBoolFuncExpr when_;
};

}  // namespace cdm
