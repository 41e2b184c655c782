// Rows of a state table, made when read.
#include <limits>

#include "hostapi/cdm/LibStateTable.h"

namespace cdm {

namespace {

// Does an input symbol accept the value before and after (the same for an
// input that takes one column)?
bool InputMatches(const std::string& symbol, int before, int after) {
  if (symbol == "-") return true;
  if (symbol == "L") return after == 0;
  if (symbol == "H") return after == 1;
  if (symbol == "R") return before == 0 && after == 1;
  if (symbol == "F") return before == 1 && after == 0;
  if (symbol == "~R") return !(before == 0 && after == 1);
  if (symbol == "~F") return !(before == 1 && after == 0);
  return false;
}

}  // namespace

StateTableRows::StateTableRows(std::vector<Line> lines, std::set<unsigned> doubled, size_t inputs,
                               size_t internals)
    : lines_(std::move(lines)),
      doubled_(std::move(doubled)),
      inputs_(inputs),
      internals_(internals),
      from_lines_(true) {}

StateTableRows::StateTableRows(std::vector<std::vector<std::string>> rows)
    : rows_(std::move(rows)) {}

uint64_t StateTableRows::size() const {
  if (!from_lines_) return rows_.size();
  const size_t bits = inputs_ + doubled_.size() + internals_;
  if (bits >= 64) return std::numeric_limits<uint64_t>::max();
  return uint64_t{1} << bits;
}

std::vector<std::string> StateTableRows::operator[](uint64_t index) const {
  if (!from_lines_) return rows_.at(index);
  // Read the bits: inputs from the most significant end, a doubled input's
  // starred (before) column first, then the internal ports. Bits above the
  // 64th read 0.
  size_t bit = inputs_ + doubled_.size() + internals_;
  auto next_bit = [&]() {
    --bit;
    return bit < 64 ? static_cast<int>((index >> bit) & 1) : 0;
  };
  std::vector<int> before(inputs_);
  std::vector<int> after(inputs_);
  for (size_t i = 0; i < inputs_; ++i) {
    const bool doubled = doubled_.count(static_cast<unsigned>(i)) != 0;
    if (doubled) before[i] = next_bit();
    after[i] = next_bit();
    if (!doubled) before[i] = after[i];
  }
  std::vector<int> state(internals_);
  for (size_t k = 0; k < internals_; ++k) state[k] = next_bit();
  for (const Line& line : lines_) {
    bool match = true;
    for (size_t i = 0; i < inputs_ && match; ++i)
      match = InputMatches(line.inputs[i], before[i], after[i]);
    for (size_t k = 0; k < internals_ && match; ++k)
      match = line.current[k] == "-" || (line.current[k] == "H") == (state[k] == 1);
    if (match) return line.next;
  }
  return std::vector<std::string>(internals_, "X");
}

}  // namespace cdm
