// A lookup table of a timing or power model: up to three axes and the
// values, all in SI units.
#pragma once

#include <string>
#include <vector>

#include "hostapi/cdm/LibEnums.h"

namespace cdm {

class LibTableTemplate;
struct LibUnits;
class Unit;

class LibTable {
 public:
  // `axes[i]` holds the index values of axis i; `values` is row-major over
  // the axes (a scalar table has no axes and one value).
  LibTable(const LibTableTemplate* table_template, std::vector<TableAxisVariable> variables,
           std::vector<std::vector<float>> axes, std::vector<float> values)
      : template_(table_template),
        variables_(std::move(variables)),
        axes_(std::move(axes)),
        values_(std::move(values)) {}

  const LibTableTemplate* GetTemplate() const { return template_; }
  size_t AxisCount() const { return axes_.size(); }
  TableAxisVariable GetVariable(size_t axis) const { return variables_[axis]; }
  const std::vector<float>& GetAxis(size_t axis) const { return axes_[axis]; }
  const std::vector<float>& GetValues() const { return values_; }

  // Readable text of the table; `value_unit` scales the values, axis
  // values are scaled by the unit their variable implies.
  std::string Dump(const std::string& indent, const Unit& value_unit, const LibUnits& units) const;

 private:
  const LibTableTemplate* template_;
  std::vector<TableAxisVariable> variables_;
  std::vector<std::vector<float>> axes_;
  std::vector<float> values_;
};

// The unit in which the values of an axis variable are written: time for
// transitions, capacitance for loads, voltage for voltages, else plain.
const Unit& AxisUnit(TableAxisVariable variable, const LibUnits& units);

}  // namespace cdm
