// The activity at the output of a Boolean function whose inputs switch
// independently of each other: the probability that it is 1, and its
// transition density, the sum over the inputs of the chance that the input
// decides the output times the input's density.
#pragma once

#include <cstddef>
#include <vector>

namespace power {

// The most inputs a function is worked out over exactly; past it the
// output is taken as 1 half the time and as busy as its busiest input.
constexpr size_t kMaxExactInputs = 12;

// `table[row]` is the function's value where bit i of `row` is input i;
// `probability[i]` and `density[i]` are input i's.
void FunctionActivity(const std::vector<bool>& table, const std::vector<double>& probability,
                      const std::vector<double>& density, double& out_probability,
                      double& out_density);

}  // namespace power
