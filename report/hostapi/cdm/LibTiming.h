// Timing groups of a library pin and the arc sets a cell offers.
#pragma once

#include <memory>
#include <string>

#include "hostapi/cdm/LibBoolFuncExpr.h"
#include "hostapi/cdm/LibEnums.h"
#include "hostapi/cdm/LibTable.h"
#include "hostapi/cdm/Selectors.h"

namespace cdm {

class LibPort;
struct LibUnits;

// The model of one edge of a timing group: the delay (or constraint) table
// and the output transition table, either of which may be absent.
class LibTimingModel {
 public:
  virtual ~LibTimingModel() = default;
  const LibTable* GetDelayTable() const { return delay_.get(); }
  const LibTable* GetTransitionTable() const { return transition_.get(); }
  // True when the delay table is a constraint (setup, hold, ...).
  bool IsConstraint() const { return constraint_; }
  // Readable text of both tables, ending in a newline.
  virtual std::string DumpSelf(const RiseFall* edge, const LibUnits& units) const;

  void SetDelayTable(std::unique_ptr<LibTable> table, bool constraint) {
    delay_ = std::move(table);
    constraint_ = constraint;
  }
  void SetTransitionTable(std::unique_ptr<LibTable> table) { transition_ = std::move(table); }

 private:
  std::unique_ptr<LibTable> delay_;
  std::unique_ptr<LibTable> transition_;
  bool constraint_ = false;
};

// One `timing` group of a pin.
class LibTimingAttr {
 public:
  TimingType GetTimingType() const { return type_; }
  TimingSense GetTimingSense() const { return sense_; }
  // The related pins as written ("A B"), empty when none.
  const std::string& GetRelatedPinsStr() const { return related_pins_; }
  const std::vector<LibPort*>& GetRelatedPorts() const { return related_ports_; }
  // Never null: the empty function when the group has no `when`.
  const LibBoolFuncExpr* GetWhen() const { return &when_; }
  const LibTimingModel* GetTimingModel(const RiseFall* edge) const {
    return models_[edge->index()].get();
  }

  void SetTimingType(TimingType type) { type_ = type; }
  void SetTimingSense(TimingSense sense) { sense_ = sense; }
  void SetRelatedPins(std::string text, std::vector<LibPort*> ports) {
    related_pins_ = std::move(text);
    related_ports_ = std::move(ports);
  }
  void SetWhen(LibBoolFuncExpr when) { when_ = std::move(when); }
  LibTimingModel* MutableModel(const RiseFall* edge) {
    auto& model = models_[edge->index()];
    if (!model) model = std::make_unique<LibTimingModel>();
    return model.get();
  }

 private:
  TimingType type_ = TimingType::kDefault;
  TimingSense sense_ = TimingSense::kUndefined;
  std::string related_pins_;
  std::vector<LibPort*> related_ports_;
  LibBoolFuncExpr when_;
  std::unique_ptr<LibTimingModel> models_[2];
};

// One arc set of a cell: a timing group seen from one related pin to the
// pin that holds it.
class LibTimingArcSet {
 public:
  LibTimingArcSet(LibPort* from, LibPort* to, const LibTimingAttr* attr)
      : from_(from), to_(to), attr_(attr) {}
  TimingType GetTimingType() const { return attr_->GetTimingType(); }
  TimingSense GetTimingSense() const { return attr_->GetTimingSense(); }
  LibPort* GetFromPort() const { return from_; }
  LibPort* GetToPort() const { return to_; }
  const std::string& GetWhenStr() const { return attr_->GetWhen()->GetFuncStr(); }
  const LibTimingAttr* GetTimingAttr() const { return attr_; }

 private:
  LibPort* from_;
  LibPort* to_;
  const LibTimingAttr* attr_;
};

}  // namespace cdm
