// The probability that a Boolean function of independent inputs is 1,
// from its truth table (the `when` of a power or leakage group).
#pragma once

#include <cstddef>
#include <vector>

namespace power {

// `table[row]` is the function's value where bit i of `row` is input i;
// `one[i]` the probability that input i is 1.
double ProbabilityOfOne(const std::vector<bool>& table, const std::vector<double>& one);

}  // namespace power
