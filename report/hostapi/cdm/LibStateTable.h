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

// A `statetable` group, unfolded.
class LibStateTable {
 public:
  std::vector<LibPort*> input_ports;     // input columns, in table order
  std::vector<LibPort*> internal_ports;  // state variables, in table order
  // Indices into input_ports of the inputs that take two columns (edge
  // values: the starred column is the value before, the plain one after).
  std::set<unsigned> doubled_inputs;
  // One row per combination of input bits (high bits) and internal bits
  // (low bits, internal port k weighs 1 << (N - 1 - k)); each row holds one
  // next-state text per internal port: "L", "H", "N" (no change), "X".
  std::vector<std::vector<std::string>> expanded_rows;

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
