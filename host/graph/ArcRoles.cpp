#include "graph/ArcRoles.h"

#include <vector>

#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibTiming.h"

namespace sta {
namespace {

using cdm::TimingSense;
using cdm::TimingType;

bool HasTable(const cdm::LibTimingArcSet& arc_set, int rf) {
  const cdm::LibTimingModel* model = arc_set.GetTimingAttr()->GetTimingModel(
      rf == 0 ? cdm::RiseFall::rise_ : cdm::RiseFall::fall_);
  return model && model->GetDelayTable();
}

// The sense of `to`'s function in `from`: positive when raising the input
// never lowers the output, negative when it never raises it.
TimingSense SenseFromFunction(const cdm::LibTimingArcSet& arc_set) {
  const cdm::LibBoolFuncExpr* function = arc_set.GetToPort()->GetFunction();
  if (!function || function->IsEmpty()) return TimingSense::kNonUnate;
  const std::vector<cdm::LibPort*>& ports = function->GetFuncPorts();
  const std::vector<bool> table = function->TruthTable();
  size_t bit = ports.size();
  for (size_t i = 0; i < ports.size(); ++i)
    if (ports[i] == arc_set.GetFromPort()) bit = i;
  if (table.empty() || bit == ports.size()) return TimingSense::kNonUnate;
  bool rises = false;
  bool falls = false;
  const size_t mask = size_t{1} << bit;
  for (size_t row = 0; row < table.size(); ++row) {
    if (row & mask) continue;
    const bool low = table[row];
    const bool high = table[row | mask];
    rises |= !low && high;
    falls |= low && !high;
  }
  if (rises && falls) return TimingSense::kNonUnate;
  return falls ? TimingSense::kNegativeUnate : TimingSense::kPositiveUnate;
}

uint8_t BySense(TimingSense sense, int out_rf) {
  switch (sense) {
    case TimingSense::kPositiveUnate:
      return ArcBit(out_rf, out_rf);
    case TimingSense::kNegativeUnate:
      return ArcBit(1 - out_rf, out_rf);
    default:
      return static_cast<uint8_t>(ArcBit(0, out_rf) | ArcBit(1, out_rf));
  }
}

}  // namespace

EdgeRole ArcRole(const cdm::LibTimingArcSet& arc_set) {
  switch (arc_set.GetTimingType()) {
    case TimingType::kCombinational:
    case TimingType::kCombinationalRise:
    case TimingType::kCombinationalFall:
    case TimingType::kDefault:
    case TimingType::kPreset:
    case TimingType::kClear:
    case TimingType::kThreeStateEnable:
    case TimingType::kThreeStateEnableRise:
    case TimingType::kThreeStateEnableFall:
      return EdgeRole::kCombinational;
    case TimingType::kRisingEdge:
    case TimingType::kFallingEdge:
      return EdgeRole::kClockToOutput;
    case TimingType::kThreeStateDisable:
    case TimingType::kThreeStateDisableRise:
    case TimingType::kThreeStateDisableFall:
      return EdgeRole::kThreeStateOff;
    case TimingType::kSetupRising:
    case TimingType::kSetupFalling:
    case TimingType::kRecoveryRising:
    case TimingType::kRecoveryFalling:
    case TimingType::kNonSeqSetupRising:
    case TimingType::kNonSeqSetupFalling:
      return EdgeRole::kSetup;
    case TimingType::kHoldRising:
    case TimingType::kHoldFalling:
    case TimingType::kRemovalRising:
    case TimingType::kRemovalFalling:
    case TimingType::kNonSeqHoldRising:
    case TimingType::kNonSeqHoldFalling:
      return EdgeRole::kHold;
    case TimingType::kMinPulseWidth:
      return EdgeRole::kMinPulseWidth;
    case TimingType::kMinimumPeriod:
      return EdgeRole::kMinPeriod;
    default:
      return EdgeRole::kOtherCheck;
  }
}

int ClockEdgeOf(const cdm::LibTimingArcSet& arc_set) {
  switch (arc_set.GetTimingType()) {
    case TimingType::kFallingEdge:
    case TimingType::kSetupFalling:
    case TimingType::kHoldFalling:
    case TimingType::kRecoveryFalling:
    case TimingType::kRemovalFalling:
    case TimingType::kNonSeqSetupFalling:
    case TimingType::kNonSeqHoldFalling:
      return 1;
    default:
      return 0;
  }
}

uint8_t ArcTransitions(const cdm::LibTimingArcSet& arc_set, EdgeRole role) {
  const TimingType type = arc_set.GetTimingType();
  uint8_t arcs = 0;
  for (int rf = 0; rf < 2; ++rf) {
    if (!HasTable(arc_set, rf)) continue;
    switch (role) {
      case EdgeRole::kClockToOutput:
        arcs |= ArcBit(ClockEdgeOf(arc_set), rf);
        break;
      case EdgeRole::kSetup:
      case EdgeRole::kHold:
        arcs |= ArcBit(ClockEdgeOf(arc_set), rf);
        break;
      case EdgeRole::kMinPulseWidth:
      case EdgeRole::kMinPeriod:
        arcs |= ArcBit(rf, rf);
        break;
      case EdgeRole::kCombinational: {
        if (type == TimingType::kCombinationalRise || type == TimingType::kPreset ||
            type == TimingType::kThreeStateEnableRise) {
          if (rf != 0) continue;
        }
        if (type == TimingType::kCombinationalFall || type == TimingType::kClear ||
            type == TimingType::kThreeStateEnableFall) {
          if (rf != 1) continue;
        }
        TimingSense sense = arc_set.GetTimingSense();
        if (sense != TimingSense::kPositiveUnate && sense != TimingSense::kNegativeUnate &&
            sense != TimingSense::kNonUnate) {
          sense = SenseFromFunction(arc_set);
        }
        arcs |= BySense(sense, rf);
        break;
      }
      default:
        arcs |= BySense(TimingSense::kNonUnate, rf);
        break;
    }
  }
  return arcs;
}

}  // namespace sta
