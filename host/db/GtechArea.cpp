// Area estimates for generic-library cells before mapping: each generic
// gate takes the area of the smallest default-library cell that computes
// the same function (inputs in any order), or 0 when none does. Sequential
// generic cells, constants and cells of more than one output keep 0.
//
// A generic gate's GetArea asks for its estimate itself, again whenever the
// root's change generation moved (a library read or replaced, the default
// library changed, a design read or linked), so that every report sees the
// same figure at every moment whichever ran first.
#include "db/GtechArea.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <vector>

#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/HostServices.h"
#include "hostapi/cdm/LibBoolFuncExpr.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibertyLib.h"

namespace {

using cdm::LibCell;
using cdm::LibPort;

constexpr size_t kMaxInputs = 6;  // 720 orders at most

// A combinational cell with one output, described by its inputs in order
// and the output's function.
struct Gate {
  std::vector<const LibPort*> inputs;
  const cdm::LibBoolFuncExpr* function = nullptr;
};

bool AsGate(const LibCell* cell, Gate& gate) {
  if (cell->IsSequentialCell()) return false;
  const LibPort* output = nullptr;
  for (const LibPort* port : cell->GetPorts()) {
    if (port->GetDirection() == 0) {
      gate.inputs.push_back(port);
    } else if (port->GetDirection() == 1) {
      if (output) return false;
      output = port;
    } else if (port->GetDirection() == 2) {
      return false;
    }
  }
  if (!output || !output->GetFunction() || output->GetFunction()->IsEmpty()) return false;
  gate.function = output->GetFunction();
  return gate.inputs.size() <= kMaxInputs;
}

bool Value(const Gate& gate, const std::vector<int>& order, unsigned row, const LibPort* port) {
  for (size_t i = 0; i < gate.inputs.size(); ++i)
    if (gate.inputs[i] == port) return (row >> order[i]) & 1u;
  return false;
}

// True when `candidate` with its inputs taken in `order` computes the
// generic gate's function on every row.
bool SameFunction(const Gate& generic, const Gate& candidate, const std::vector<int>& order) {
  std::vector<int> identity(generic.inputs.size());
  std::iota(identity.begin(), identity.end(), 0);
  unsigned rows = 1u << generic.inputs.size();
  for (unsigned row = 0; row < rows; ++row) {
    bool expected = generic.function->Evaluate(
        [&](const LibPort* port) { return Value(generic, identity, row, port); });
    bool actual = candidate.function->Evaluate(
        [&](const LibPort* port) { return Value(candidate, order, row, port); });
    if (expected != actual) return false;
  }
  return true;
}

bool Equivalent(const Gate& generic, const Gate& candidate) {
  if (generic.inputs.size() != candidate.inputs.size()) return false;
  std::vector<int> order(candidate.inputs.size());
  std::iota(order.begin(), order.end(), 0);
  do {
    if (SameFunction(generic, candidate, order)) return true;
  } while (std::next_permutation(order.begin(), order.end()));
  return false;
}

}  // namespace

namespace common {

float GenericGateArea(const LibCell* generic_cell, const cdm::LibertyLib* library) {
  Gate generic;
  if (!library || generic_cell->GetConstOutputValue() >= 0 || !AsGate(generic_cell, generic))
    return 0.0f;
  float best = std::numeric_limits<float>::max();
  for (const LibCell* cell : library->GetLibCells()) {
    // A clock gate computes an AND, but no mapper would use it for one.
    if (cell->DontUse() || cell->IsClockGate() || cell->GetArea() >= best) continue;
    Gate candidate;
    if (AsGate(cell, candidate) && Equivalent(generic, candidate)) best = cell->GetArea();
  }
  return best == std::numeric_limits<float>::max() ? 0.0f : best;
}

// The estimates are made on demand by the gates themselves; this brings
// them all up to date before the area report, which reads each of them.
void EnsureGtechReportReady(cdm::Design*) {
  cdm::LibertyLib* generic = cdm::DbManager::GetGenericLib();
  if (!generic) return;
  for (const LibCell* cell : generic->GetLibCells()) cell->GetArea();
}

}  // namespace common
