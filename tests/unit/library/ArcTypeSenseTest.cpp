// The Sense/Type column of the timing arc table: each timing type with the
// unate, fall or rise word its sense picks, and an empty text for the
// types the table has no words for.
#include <gtest/gtest.h>

#include "hostapi/cdm/LibTiming.h"
#include "library/ReportLibSections.h"

namespace {

using cdm::TimingSense;
using cdm::TimingType;

std::string Text(TimingType type, TimingSense sense) {
  cdm::LibTimingAttr attr;
  attr.SetTimingType(type);
  attr.SetTimingSense(sense);
  cdm::LibTimingArcSet arc(nullptr, nullptr, &attr);
  return GetArcTypeSense(&arc);
}

TEST(GetArcTypeSense, UnateWordsFollowTheSense) {
  EXPECT_EQ(Text(TimingType::kCombinational, TimingSense::kPositiveUnate), "pos unate");
  EXPECT_EQ(Text(TimingType::kCombinational, TimingSense::kNegativeUnate), "neg unate");
  EXPECT_EQ(Text(TimingType::kCombinational, TimingSense::kNonUnate), "non unate");
  // Any sense past negative_unate reads as the third word.
  EXPECT_EQ(Text(TimingType::kCombinational, TimingSense::kUndefined), "non unate");
  // No timing_type written reads as combinational.
  EXPECT_EQ(Text(TimingType::kDefault, TimingSense::kNegativeUnate), "neg unate");
  EXPECT_EQ(Text(TimingType::kClear, TimingSense::kPositiveUnate), "clear pos unate");
  EXPECT_EQ(Text(TimingType::kPreset, TimingSense::kNegativeUnate), "preset neg unate");
  EXPECT_EQ(Text(TimingType::kThreeStateDisable, TimingSense::kNone), "3_state_disable non unate");
  EXPECT_EQ(Text(TimingType::kThreeStateEnable, TimingSense::kPositiveUnate),
            "3_state_enable pos unate");
}

TEST(GetArcTypeSense, EdgeWordsSwapWithNegativeSense) {
  EXPECT_EQ(Text(TimingType::kCombinationalFall, TimingSense::kPositiveUnate), "fall to fall");
  EXPECT_EQ(Text(TimingType::kCombinationalFall, TimingSense::kNegativeUnate), "rise to fall");
  EXPECT_EQ(Text(TimingType::kCombinationalFall, TimingSense::kNonUnate), "non to fall");
  EXPECT_EQ(Text(TimingType::kCombinationalRise, TimingSense::kPositiveUnate), "rise to rise");
  EXPECT_EQ(Text(TimingType::kCombinationalRise, TimingSense::kNegativeUnate), "fall to rise");
  EXPECT_EQ(Text(TimingType::kCombinationalRise, TimingSense::kNonUnate), "non to rise");
  EXPECT_EQ(Text(TimingType::kThreeStateDisableFall, TimingSense::kNegativeUnate),
            "3_state_disable rise to fall");
  EXPECT_EQ(Text(TimingType::kThreeStateDisableRise, TimingSense::kPositiveUnate),
            "3_state_disable rise to rise");
  EXPECT_EQ(Text(TimingType::kThreeStateEnableFall, TimingSense::kPositiveUnate),
            "3_state_enable fall to fall");
  EXPECT_EQ(Text(TimingType::kThreeStateEnableRise, TimingSense::kNonUnate),
            "3_state_enable non to rise");
}

TEST(GetArcTypeSense, ChecksAndEdgesIgnoreTheSense) {
  for (TimingSense sense : {TimingSense::kPositiveUnate, TimingSense::kNegativeUnate}) {
    EXPECT_EQ(Text(TimingType::kFallingEdge, sense), "falling edge");
    EXPECT_EQ(Text(TimingType::kRisingEdge, sense), "rising edge");
    EXPECT_EQ(Text(TimingType::kHoldFalling, sense), "hold falling");
    EXPECT_EQ(Text(TimingType::kHoldRising, sense), "hold rising");
    EXPECT_EQ(Text(TimingType::kSetupFalling, sense), "setup falling");
    EXPECT_EQ(Text(TimingType::kSetupRising, sense), "setup rising");
    EXPECT_EQ(Text(TimingType::kRecoveryFalling, sense), "recovery falling");
    EXPECT_EQ(Text(TimingType::kRecoveryRising, sense), "recovery rising");
    EXPECT_EQ(Text(TimingType::kRemovalFalling, sense), "removal falling");
    EXPECT_EQ(Text(TimingType::kRemovalRising, sense), "removal rising");
    EXPECT_EQ(Text(TimingType::kSkewFalling, sense), "skew falling");
    EXPECT_EQ(Text(TimingType::kSkewRising, sense), "skew rising");
    EXPECT_EQ(Text(TimingType::kMinPulseWidth, sense), "min pulse width");
  }
}

TEST(GetArcTypeSense, TypesWithoutWordsGiveAnEmptyText) {
  for (TimingType type :
       {TimingType::kMinimumPeriod, TimingType::kNochangeHighHigh, TimingType::kNochangeLowLow,
        TimingType::kNonSeqHoldRising, TimingType::kNonSeqSetupFalling, TimingType::kRetainingTime,
        TimingType::kMinClockTreePath, TimingType::kMaxClockTreePath, TimingType::kUnknown}) {
    EXPECT_EQ(Text(type, TimingSense::kPositiveUnate), "") << static_cast<int>(type);
  }
}

}  // namespace
