// Enumerations of the library model and their spellings. Each name table is
// a file-local object so that every source file has its own copy.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace cdm {

// Two-way table between an enumeration and its spelling.
template <class E>
class EnumNameMap {
 public:
  EnumNameMap(std::initializer_list<std::pair<E, const char*>> entries) : entries_(entries) {}
  // The spelling of `value`, null when the table has none.
  const char* find(E value) const {
    for (const auto& entry : entries_) {
      if (entry.first == value) return entry.second;
    }
    return nullptr;
  }
  // The value spelled `name`; false when the table has no such spelling.
  bool find(std::string_view name, E& value) const {
    for (const auto& entry : entries_) {
      if (name == entry.second) {
        value = entry.first;
        return true;
      }
    }
    return false;
  }
  const std::vector<std::pair<E, const char*>>& entries() const { return entries_; }

 private:
  std::vector<std::pair<E, const char*>> entries_;
};

enum class ScaleFactorPVT : int { kProcess = 0, kVolt = 1, kTemp = 2 };

enum class ScaleFactorType : uint8_t {
  kPinCap = 0,
  kWireRes = 1,
  kMinPeriod = 3,
  kCell = 4,
  kHold = 5,
  kSetup = 6,
  kRecovery = 7,
  kRemoval = 8,
  kNochange = 9,
  kSkew = 10,
  kLeakagePower = 11,
  kInternalPower = 12,
  kTransition = 13,
  kMinPulseWidth = 14,
  kUnknown = 15,
};

enum class TimingSense : int {
  kPositiveUnate = 0,
  kNegativeUnate = 1,
  kNonUnate = 2,
  kNone = 3,
  kUnknown = 4,
  kUndefined = 5,
};

enum class TableAxisVariable : int {
  kInputNetTransition = 0,
  kTotalOutputNetCapacitance = 1,
  kRelatedOutTotalOutputNetCapacitance = 5,
  kEqualOrOppositeOutputNetCapacitance = 9,
  kInputTransitionTime = 10,
  kRelatedPinTransition = 11,
  kConstrainedPinTransition = 12,
  kOutputPinTransition = 13,
  kConnectDelay = 14,
  kTime = 15,
  kIvOutputVoltage = 16,
  kInputNoiseWidth = 17,
  kInputNoiseHeight = 18,
  kInputVoltage = 19,
  kOutputVoltage = 20,
  kPathDepth = 21,
  kPathDistance = 22,
  kNormalizedVoltage = 23,
  kCurveParameters = 24,
  kUnknown = 99,  // a variable the table does not name
};

enum class TimingType : int {
  kClear = 0,
  kCombinational = 1,
  kCombinationalFall = 2,
  kCombinationalRise = 3,
  kFallingEdge = 4,
  kHoldFalling = 5,
  kHoldRising = 6,
  kMinPulseWidth = 7,
  kMinimumPeriod = 8,
  kNochangeHighHigh = 9,
  kNochangeHighLow = 10,
  kNochangeLowHigh = 11,
  kNochangeLowLow = 12,
  kNonSeqHoldFalling = 13,
  kNonSeqHoldRising = 14,
  kNonSeqSetupFalling = 15,
  kNonSeqSetupRising = 16,
  kPreset = 17,
  kRecoveryFalling = 18,
  kRecoveryRising = 19,
  kRemovalFalling = 20,
  kRemovalRising = 21,
  kRetainingTime = 22,
  kRisingEdge = 23,
  kSetupFalling = 24,
  kSetupRising = 25,
  kSkewFalling = 26,
  kSkewRising = 27,
  kThreeStateDisable = 28,
  kThreeStateDisableFall = 29,
  kThreeStateDisableRise = 30,
  kThreeStateEnable = 31,
  kThreeStateEnableFall = 32,
  kThreeStateEnableRise = 33,
  kMinClockTreePath = 34,
  kMaxClockTreePath = 35,
  kUnknown = 36,  // a timing_type this reader does not know
  kDefault = 37,  // no timing_type written: combinational by default
};

// Values 3 (table_lookup) has lookup table templates.
enum class DelayModelType : int {
  kGenericCmos = 0,
  kPiecewiseCmos = 1,
  kCmos2 = 2,
  kTableLookup = 3,
  kPolynomial = 4,
  kDcm = 5,
};

// Values 0 and 2 have internal power templates.
enum class PowerModelType : int { kTableLookup = 0, kNone = 1, kPolynomial = 2 };

enum class WireLoadTree : int { kWorstCase = 0, kBestCase = 1, kBalanced = 2, kUnknown = 3 };

enum class WireLoadMode : int { kTop = 0, kEnclosed = 1, kSegmented = 2, kUnknown = 3 };

enum class PgType : int {
  kPrimaryPower = 0,
  kPrimaryGround = 1,
  kBackupPower = 2,
  kBackupGround = 3,
  kInternalPower = 4,
  kInternalGround = 5,
  kPwell = 6,
  kNwell = 7,
  kDeeppwell = 8,
  kDeepnwell = 9,
  kUnknown = 10,
};

enum class TemplateClass : int { kDelay = 0, kPower = 1 };

static const EnumNameMap<ScaleFactorPVT> scale_factor_pvt_map{
    {ScaleFactorPVT::kProcess, "process"},
    {ScaleFactorPVT::kVolt, "volt"},
    {ScaleFactorPVT::kTemp, "temp"},
};

static const EnumNameMap<ScaleFactorType> scale_factor_type_map{
    {ScaleFactorType::kPinCap, "pin_cap"},
    {ScaleFactorType::kWireRes, "wire_res"},
    {ScaleFactorType::kMinPeriod, "min_period"},
    {ScaleFactorType::kCell, "cell"},
    {ScaleFactorType::kHold, "hold"},
    {ScaleFactorType::kSetup, "setup"},
    {ScaleFactorType::kRecovery, "recovery"},
    {ScaleFactorType::kRemoval, "removal"},
    {ScaleFactorType::kNochange, "nochange"},
    {ScaleFactorType::kSkew, "skew"},
    {ScaleFactorType::kLeakagePower, "leakage_power"},
    {ScaleFactorType::kInternalPower, "internal_power"},
    {ScaleFactorType::kTransition, "transition"},
    {ScaleFactorType::kMinPulseWidth, "min_pulse_width"},
    {ScaleFactorType::kUnknown, "unknown"},
};

static const EnumNameMap<TimingSense> timing_sense_map{
    {TimingSense::kPositiveUnate, "positive_unate"},
    {TimingSense::kNegativeUnate, "negative_unate"},
    {TimingSense::kNonUnate, "non_unate"},
    {TimingSense::kNone, "none"},
    {TimingSense::kUnknown, "unknown"},
    {TimingSense::kUndefined, "undefined"},
};

static const EnumNameMap<TableAxisVariable> table_axis_variable_map{
    {TableAxisVariable::kTotalOutputNetCapacitance, "total_output_net_capacitance"},
    {TableAxisVariable::kEqualOrOppositeOutputNetCapacitance,
     "equal_or_opposite_output_net_capacitance"},
    {TableAxisVariable::kInputNetTransition, "input_net_transition"},
    {TableAxisVariable::kInputTransitionTime, "input_transition_time"},
    {TableAxisVariable::kRelatedPinTransition, "related_pin_transition"},
    {TableAxisVariable::kConstrainedPinTransition, "constrained_pin_transition"},
    {TableAxisVariable::kOutputPinTransition, "output_pin_transition"},
    {TableAxisVariable::kConnectDelay, "connect_delay"},
    {TableAxisVariable::kRelatedOutTotalOutputNetCapacitance,
     "related_out_total_output_net_capacitance"},
    {TableAxisVariable::kTime, "time"},
    {TableAxisVariable::kIvOutputVoltage, "iv_output_voltage"},
    {TableAxisVariable::kInputNoiseWidth, "input_noise_width"},
    {TableAxisVariable::kInputNoiseHeight, "input_noise_height"},
    {TableAxisVariable::kInputVoltage, "input_voltage"},
    {TableAxisVariable::kOutputVoltage, "output_voltage"},
    {TableAxisVariable::kPathDepth, "path_depth"},
    {TableAxisVariable::kPathDistance, "path_distance"},
    {TableAxisVariable::kNormalizedVoltage, "normalized_voltage"},
    {TableAxisVariable::kCurveParameters, "curve_parameters"},
};

static const EnumNameMap<TimingType> timing_type_map{
    {TimingType::kClear, "clear"},
    {TimingType::kCombinational, "combinational"},
    {TimingType::kCombinationalFall, "combinational_fall"},
    {TimingType::kCombinationalRise, "combinational_rise"},
    {TimingType::kFallingEdge, "falling_edge"},
    {TimingType::kHoldFalling, "hold_falling"},
    {TimingType::kHoldRising, "hold_rising"},
    {TimingType::kMinPulseWidth, "min_pulse_width"},
    {TimingType::kMinimumPeriod, "minimum_period"},
    {TimingType::kNochangeHighHigh, "nochange_high_high"},
    {TimingType::kNochangeHighLow, "nochange_high_low"},
    {TimingType::kNochangeLowHigh, "nochange_low_high"},
    {TimingType::kNochangeLowLow, "nochange_low_low"},
    {TimingType::kNonSeqHoldFalling, "non_seq_hold_falling"},
    {TimingType::kNonSeqHoldRising, "non_seq_hold_rising"},
    {TimingType::kNonSeqSetupFalling, "non_seq_setup_falling"},
    {TimingType::kNonSeqSetupRising, "non_seq_setup_rising"},
    {TimingType::kPreset, "preset"},
    {TimingType::kRecoveryFalling, "recovery_falling"},
    {TimingType::kRecoveryRising, "recovery_rising"},
    {TimingType::kRemovalFalling, "removal_falling"},
    {TimingType::kRemovalRising, "removal_rising"},
    {TimingType::kRetainingTime, "retaining_time"},
    {TimingType::kRisingEdge, "rising_edge"},
    {TimingType::kSetupFalling, "setup_falling"},
    {TimingType::kSetupRising, "setup_rising"},
    {TimingType::kSkewFalling, "skew_falling"},
    {TimingType::kSkewRising, "skew_rising"},
    {TimingType::kThreeStateDisable, "three_state_disable"},
    {TimingType::kThreeStateDisableFall, "three_state_disable_fall"},
    {TimingType::kThreeStateDisableRise, "three_state_disable_rise"},
    {TimingType::kThreeStateEnable, "three_state_enable"},
    {TimingType::kThreeStateEnableFall, "three_state_enable_fall"},
    {TimingType::kThreeStateEnableRise, "three_state_enable_rise"},
    {TimingType::kMinClockTreePath, "min_clock_tree_path"},
    {TimingType::kMaxClockTreePath, "max_clock_tree_path"},
};

std::string to_string(DelayModelType value);
std::string to_string(PowerModelType value);
std::string to_string(TableAxisVariable value);
std::string to_string(WireLoadTree value);
std::string to_string(TimingSense value);
std::string to_string(PgType value);
std::string to_string(TimingType value);

// "top", "enclosed", "segmented"; null for a value without a name.
const char* wireloadModeString(WireLoadMode mode);

}  // namespace cdm
