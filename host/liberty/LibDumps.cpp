// Readable texts of lookup tables, timing and power models.
#include <algorithm>
#include <cstdio>

#include "hostapi/cdm/LibPower.h"
#include "hostapi/cdm/LibRecords.h"
#include "hostapi/cdm/LibTable.h"
#include "hostapi/cdm/LibTiming.h"
#include "hostapi/cdm/Units.h"

namespace cdm {

const Unit& AxisUnit(TableAxisVariable variable, const LibUnits& units) {
  switch (variable) {
    case TableAxisVariable::kInputNetTransition:
    case TableAxisVariable::kInputTransitionTime:
    case TableAxisVariable::kRelatedPinTransition:
    case TableAxisVariable::kConstrainedPinTransition:
    case TableAxisVariable::kOutputPinTransition:
    case TableAxisVariable::kConnectDelay:
    case TableAxisVariable::kTime:
    case TableAxisVariable::kInputNoiseWidth:
      return units.time;
    case TableAxisVariable::kTotalOutputNetCapacitance:
    case TableAxisVariable::kEqualOrOppositeOutputNetCapacitance:
    case TableAxisVariable::kRelatedOutTotalOutputNetCapacitance:
      return units.capacitance;
    case TableAxisVariable::kIvOutputVoltage:
    case TableAxisVariable::kInputNoiseHeight:
    case TableAxisVariable::kInputVoltage:
    case TableAxisVariable::kOutputVoltage:
      return units.voltage;
    default:
      return units.scalar;
  }
}

namespace {

std::string Join(const std::vector<float>& values, size_t from, size_t count, float scale) {
  std::string text;
  char buffer[32];
  for (size_t i = 0; i < count && from + i < values.size(); ++i) {
    if (i) text += ", ";
    std::snprintf(buffer, sizeof buffer, "%g",
                  scale != 0.0f ? values[from + i] / scale : values[from + i]);
    text += buffer;
  }
  return text;
}

std::string Head(const std::string& indent, const char* kind, const LibTable* table) {
  std::string name = table->GetTemplate() ? table->GetTemplate()->name : "scalar";
  return indent + kind + "(" + name + "):\n";
}

// Energy tables are stored in joules; they print in the library's
// convention of voltage unit times capacitance unit.
Unit EnergyUnit(const LibUnits& units) {
  return Unit(units.voltage.scale * units.capacitance.scale, "", "");
}

}  // namespace

std::string LibTable::Dump(const std::string& indent, const Unit& value_unit,
                           const LibUnits& units) const {
  std::string text;
  for (size_t axis = 0; axis < axes_.size(); ++axis) {
    const Unit& unit = AxisUnit(variables_[axis], units);
    text += indent + "index_" + std::to_string(axis + 1) + " (" + to_string(variables_[axis]) +
            "): " + Join(axes_[axis], 0, axes_[axis].size(), unit.scale) + "\n";
  }
  const size_t row =
      axes_.size() >= 2 ? values_.size() / std::max<size_t>(axes_[0].size(), 1) : values_.size();
  const std::string label = indent + "values: ";
  for (size_t from = 0; from < values_.size(); from += std::max<size_t>(row, 1)) {
    text += (from == 0 ? label : std::string(label.size(), ' ')) +
            Join(values_, from, row, value_unit.scale) + "\n";
  }
  if (values_.empty()) text += label + "\n";
  return text;
}

std::string LibTimingModel::DumpSelf(const RiseFall* edge, const LibUnits& units) const {
  const bool rise = edge == RiseFall::rise_;
  std::string text;
  if (delay_) {
    const char* kind = constraint_ ? (rise ? "rise_constraint" : "fall_constraint")
                                   : (rise ? "cell_rise" : "cell_fall");
    text += Head("      ", kind, delay_.get()) + delay_->Dump("        ", units.time, units);
  }
  if (transition_) {
    text += Head("      ", rise ? "rise_transition" : "fall_transition", transition_.get()) +
            transition_->Dump("        ", units.time, units);
  }
  return text;
}

std::string LibPowerModel::DumpSelf(const RiseFallBoth* edges, const LibUnits& units) const {
  const char* kind = edges == RiseFallBoth::rise_   ? "rise_power"
                     : edges == RiseFallBoth::fall_ ? "fall_power"
                                                    : "power";
  if (!table_) return std::string("      ") + kind + "()\n";
  return Head("      ", kind, table_.get()) + table_->Dump("        ", EnergyUnit(units), units);
}

}  // namespace cdm
