// Sequential behaviour of a library cell: `ff` / `latch` groups and
// `statetable` groups.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "hostapi/cdm/LibBoolFuncExpr.h"

namespace cdm {

class LibPort;

// An `ff`, `latch`, `ff_bank` or `latch_bank` group. `first` and `second`
// are the two state ports it declares (IQ, IQN), internal ports of the cell.
class LibSequential {
 public:
  enum class Kind : uint8_t { kFlipFlop, kLatch };

  Kind kind = Kind::kFlipFlop;
  LibPort* first = nullptr;
  LibPort* second = nullptr;
  int bank_width = 0;  // 0 for a plain ff / latch
  // ff: clocked_on, next_state, clocked_on_also; latch: enable, data_in.
  LibBoolFuncExpr clock;
  LibBoolFuncExpr data;
  LibBoolFuncExpr clock_also;
  LibBoolFuncExpr clear;
  LibBoolFuncExpr preset;
  std::string clear_preset_var1;
  std::string clear_preset_var2;

  bool IsLatch() const { return kind == Kind::kLatch; }
};

// The rows of a state table unfolded: one row per combination of input bits
// (high bits) and internal bits (low bits, internal port k weighs
// 1 << (N - 1 - k)); each row holds one next-state text per internal port:
// "L", "H", "N" (no change), "X", ... as the first line of the table that
// matches writes it, "X" when none does. A row is made when it is read, so
// a table of any width answers without holding its 2^bits rows.
class StateTableRows {
 public:
  // One line of the table as the library writes it.
  struct Line {
    std::vector<std::string> inputs;   // per input: L H - R F ~R ~F
    std::vector<std::string> current;  // per internal port: L H -
    std::vector<std::string> next;     // per internal port
  };

  StateTableRows() = default;
  // The rows of the table `lines` over `inputs` inputs (those of `doubled`
  // take two columns: the value before, then after) and `internals`
  // internal ports.
  StateTableRows(std::vector<Line> lines, std::set<unsigned> doubled, size_t inputs,
                 size_t internals);
  // Rows given one by one, for a table built by hand.
  explicit StateTableRows(std::vector<std::vector<std::string>> rows);

  // 2^bits (saturated at the largest 64-bit value); 0 for no table.
  uint64_t size() const;
  bool empty() const { return size() == 0; }
  // The row `index` (< size()).
  std::vector<std::string> operator[](uint64_t index) const;

 private:
  std::vector<Line> lines_;
  std::set<unsigned> doubled_;
  size_t inputs_ = 0;
  size_t internals_ = 0;
  bool from_lines_ = false;  // else rows_ holds the rows as given
  std::vector<std::vector<std::string>> rows_;
};

// A `statetable` group.
class LibStateTable {
 public:
  std::vector<LibPort*> input_ports;     // input columns, in table order
  std::vector<LibPort*> internal_ports;  // state variables, in table order
  // Indices into input_ports of the inputs that take two columns (edge
  // values: the starred column is the value before, the plain one after).
  std::set<unsigned> doubled_inputs;
  // The table unfolded, one row per combination of input and internal bits.
  StateTableRows expanded_rows;

  // Indices of the internal ports whose present value the table reads.
  std::vector<int> GetUsedInternalPortsIndex() const { return used_internal_; }
  void SetUsedInternalPortsIndex(std::vector<int> used) { used_internal_ = std::move(used); }

 private:
  std::vector<int> used_internal_;
};

}  // namespace cdm

// All patterns of `count` symbols, most significant first, from all low to
// all high: digits 0/1 when `numeric`, else letters L/H. A count of 0 gives
// the one pattern "0" when `numeric` (so that it still reads as a number),
// else one empty pattern.
std::vector<std::string> smartFullPermutation(int count, bool numeric);
