#include "dcalc/TableLookup.h"

#include <cstddef>
#include <vector>

#include "hostapi/cdm/LibTable.h"

namespace sta {
namespace {

float AxisArgument(cdm::TableAxisVariable variable, const TableArgs& args) {
  switch (variable) {
    case cdm::TableAxisVariable::kInputNetTransition:
    case cdm::TableAxisVariable::kInputTransitionTime:
      return args.in_slew;
    case cdm::TableAxisVariable::kTotalOutputNetCapacitance:
    case cdm::TableAxisVariable::kEqualOrOppositeOutputNetCapacitance:
    case cdm::TableAxisVariable::kRelatedOutTotalOutputNetCapacitance:
      return args.load;
    case cdm::TableAxisVariable::kRelatedPinTransition:
      return args.related_slew;
    case cdm::TableAxisVariable::kConstrainedPinTransition:
      return args.constrained_slew;
    default:
      return 0.0f;
  }
}

// The lower index point of the segment used for `x`, and the weight of the
// upper one (below 0 or above 1 when extrapolating).
void Segment(const std::vector<float>& axis, double x, size_t& lower, double& weight) {
  if (axis.size() < 2) {
    lower = 0;
    weight = 0.0;
    return;
  }
  lower = 0;
  while (lower + 2 < axis.size() && x > axis[lower + 1]) ++lower;
  const double x0 = axis[lower];
  const double x1 = axis[lower + 1];
  weight = x1 == x0 ? 0.0 : (x - x0) / (x1 - x0);
}

}  // namespace

float TableValue(const cdm::LibTable& table, const TableArgs& args) {
  const std::vector<float>& values = table.GetValues();
  const size_t axes = table.AxisCount();
  if (values.empty()) return 0.0f;
  if (axes == 0) return values[0];
  size_t lower[3] = {0, 0, 0};
  double weight[3] = {0.0, 0.0, 0.0};
  size_t stride[3] = {1, 1, 1};
  for (size_t a = 0; a < axes && a < 3; ++a) {
    Segment(table.GetAxis(a), AxisArgument(table.GetVariable(a), args), lower[a], weight[a]);
  }
  for (size_t a = axes; a-- > 1;) stride[a - 1] = stride[a] * table.GetAxis(a).size();
  // Sum over the corners of the cell: each axis takes its lower or upper
  // point, weighted (1 - w) or w; a one-point axis has only its lower.
  double sum = 0.0;
  const size_t corners = size_t{1} << axes;
  for (size_t corner = 0; corner < corners; ++corner) {
    double w = 1.0;
    size_t index = 0;
    bool exists = true;
    for (size_t a = 0; a < axes; ++a) {
      const bool upper = (corner >> a) & 1;
      if (upper && table.GetAxis(a).size() < 2) {
        exists = false;
        break;
      }
      w *= upper ? weight[a] : 1.0 - weight[a];
      index += (lower[a] + (upper ? 1 : 0)) * stride[a];
    }
    if (exists && index < values.size()) sum += w * values[index];
  }
  return static_cast<float>(sum);
}

}  // namespace sta
