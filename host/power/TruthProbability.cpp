#include "power/TruthProbability.h"

namespace power {
namespace {

// The probability of the input values of `row`, input `skip` left out.
double RowProbability(size_t row, const std::vector<double>& one, size_t skip) {
  double p = 1.0;
  for (size_t i = 0; i < one.size(); ++i) {
    if (i == skip) continue;
    p *= ((row >> i) & 1) ? one[i] : 1.0 - one[i];
  }
  return p;
}

}  // namespace

double ProbabilityOfOne(const std::vector<bool>& table, const std::vector<double>& one) {
  double sum = 0.0;
  for (size_t row = 0; row < table.size(); ++row)
    if (table[row]) sum += RowProbability(row, one, one.size());
  return sum;
}

}  // namespace power
