#include "power/FunctionActivity.h"

#include <algorithm>

namespace power {
namespace {

// The weight of `row` over every input but `skip` (-1 for none).
double RowWeight(size_t row, const std::vector<double>& probability, int skip) {
  double weight = 1.0;
  for (size_t i = 0; i < probability.size(); ++i) {
    if (static_cast<int>(i) == skip) continue;
    weight *= ((row >> i) & 1) ? probability[i] : 1.0 - probability[i];
  }
  return weight;
}

}  // namespace

void FunctionActivity(const std::vector<bool>& table, const std::vector<double>& probability,
                      const std::vector<double>& density, double& out_probability,
                      double& out_density) {
  const size_t inputs = probability.size();
  if (inputs > kMaxExactInputs || table.size() != (size_t{1} << inputs)) {
    out_probability = 0.5;
    out_density = density.empty() ? 0.0 : *std::max_element(density.begin(), density.end());
    return;
  }
  out_probability = 0.0;
  for (size_t row = 0; row < table.size(); ++row)
    if (table[row]) out_probability += RowWeight(row, probability, -1);
  out_density = 0.0;
  for (size_t i = 0; i < inputs; ++i) {
    if (density[i] == 0.0) continue;
    const size_t bit = size_t{1} << i;
    double decides = 0.0;
    for (size_t row = 0; row < table.size(); ++row)
      if (!(row & bit) && table[row] != table[row | bit])
        decides += RowWeight(row, probability, static_cast<int>(i));
    out_density += decides * density[i];
  }
}

}  // namespace power
