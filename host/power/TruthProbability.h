// Probabilities of Boolean functions of independent inputs, from their
// truth tables: the chance a function is 1, and the chance that one input
// decides it (its Boolean difference is 1).
#pragma once

#include <cstddef>
#include <vector>

namespace power {

// `table[row]` is the function's value where bit i of `row` is input i;
// `one[i]` the probability that input i is 1.
double ProbabilityOfOne(const std::vector<bool>& table, const std::vector<double>& one);

// The probability that flipping input `input` flips the function.
double ProbabilityDecides(const std::vector<bool>& table, const std::vector<double>& one,
                          size_t input);

}  // namespace power
