// Table values between index points, beyond them, and by axis variable.
#include <gtest/gtest.h>

#include <vector>

#include "dcalc/TableLookup.h"
#include "hostapi/cdm/LibTable.h"

namespace {

using cdm::LibTable;
using cdm::TableAxisVariable;

// f(slew, load) = 1 + 2 slew + load + 6 slew load, sampled at 0 and 1.
LibTable Bilinear() {
  return LibTable(
      nullptr,
      {TableAxisVariable::kInputNetTransition, TableAxisVariable::kTotalOutputNetCapacitance},
      {{0.0f, 1.0f}, {0.0f, 1.0f}}, {1.0f, 2.0f, 3.0f, 10.0f});
}

sta::TableArgs SlewLoad(float slew, float load) {
  sta::TableArgs args;
  args.in_slew = slew;
  args.load = load;
  return args;
}

TEST(TableLookupTest, InterpolatesAndExtrapolatesInTwoAxes) {
  const LibTable table = Bilinear();
  EXPECT_FLOAT_EQ(sta::TableValue(table, SlewLoad(0.0f, 0.0f)), 1.0f);
  EXPECT_FLOAT_EQ(sta::TableValue(table, SlewLoad(1.0f, 1.0f)), 10.0f);
  EXPECT_FLOAT_EQ(sta::TableValue(table, SlewLoad(0.5f, 0.5f)), 4.0f);
  EXPECT_FLOAT_EQ(sta::TableValue(table, SlewLoad(0.25f, 1.0f)), 4.0f);  // 2 + 0.25 * 8
  // Beyond the points the end segments go on straight, in both axes.
  EXPECT_FLOAT_EQ(sta::TableValue(table, SlewLoad(2.0f, 0.0f)), 5.0f);
  EXPECT_FLOAT_EQ(sta::TableValue(table, SlewLoad(2.0f, 2.0f)), 31.0f);
  EXPECT_FLOAT_EQ(sta::TableValue(table, SlewLoad(-1.0f, 0.5f)), -3.5f);
}

TEST(TableLookupTest, AxesFollowTheirVariablesNotTheirOrder) {
  // The same function with load as the first axis.
  const LibTable table(
      nullptr,
      {TableAxisVariable::kTotalOutputNetCapacitance, TableAxisVariable::kInputNetTransition},
      {{0.0f, 1.0f}, {0.0f, 1.0f}}, {1.0f, 3.0f, 2.0f, 10.0f});
  EXPECT_FLOAT_EQ(sta::TableValue(table, SlewLoad(1.0f, 0.0f)), 3.0f);
  EXPECT_FLOAT_EQ(sta::TableValue(table, SlewLoad(0.0f, 1.0f)), 2.0f);
  EXPECT_FLOAT_EQ(sta::TableValue(table, SlewLoad(2.0f, 2.0f)), 31.0f);
  // A check table reads the clock's and the data's transitions.
  const LibTable check(
      nullptr,
      {TableAxisVariable::kRelatedPinTransition, TableAxisVariable::kConstrainedPinTransition},
      {{0.0f, 1.0f}, {0.0f, 1.0f}}, {1.0f, 2.0f, 3.0f, 10.0f});
  sta::TableArgs args;
  args.related_slew = 1.0f;
  args.constrained_slew = 0.0f;
  EXPECT_FLOAT_EQ(sta::TableValue(check, args), 3.0f);
}

TEST(TableLookupTest, FindsTheSegmentOfAnInnerPointAndKeepsOnePointAxesFlat) {
  const LibTable row(nullptr, {TableAxisVariable::kTotalOutputNetCapacitance}, {{0.0f, 1.0f, 3.0f}},
                     {0.0f, 1.0f, 5.0f});
  EXPECT_FLOAT_EQ(sta::TableValue(row, SlewLoad(0.0f, 2.0f)), 3.0f);
  EXPECT_FLOAT_EQ(sta::TableValue(row, SlewLoad(0.0f, 4.0f)), 7.0f);
  EXPECT_FLOAT_EQ(sta::TableValue(row, SlewLoad(0.0f, -1.0f)), -1.0f);
  const LibTable flat(
      nullptr,
      {TableAxisVariable::kInputNetTransition, TableAxisVariable::kTotalOutputNetCapacitance},
      {{0.5f}, {0.0f, 1.0f}}, {2.0f, 4.0f});
  EXPECT_FLOAT_EQ(sta::TableValue(flat, SlewLoad(9.0f, 0.5f)), 3.0f);
  const LibTable scalar(nullptr, {}, {}, {0.7f});
  EXPECT_FLOAT_EQ(sta::TableValue(scalar, SlewLoad(9.0f, 9.0f)), 0.7f);
}

TEST(TableLookupTest, ThreeAxesAreTrilinear) {
  // f = slew + 10 load + 100 related, at the corners of the unit cube.
  std::vector<float> values;
  for (int s = 0; s < 2; ++s)
    for (int l = 0; l < 2; ++l)
      for (int r = 0; r < 2; ++r) values.push_back(s + 10.0f * l + 100.0f * r);
  const LibTable cube(
      nullptr,
      {TableAxisVariable::kInputNetTransition, TableAxisVariable::kTotalOutputNetCapacitance,
       TableAxisVariable::kRelatedPinTransition},
      {{0.0f, 1.0f}, {0.0f, 1.0f}, {0.0f, 1.0f}}, values);
  sta::TableArgs args = SlewLoad(0.5f, 0.25f);
  args.related_slew = 0.75f;
  EXPECT_FLOAT_EQ(sta::TableValue(cube, args), 0.5f + 2.5f + 75.0f);
}

}  // namespace
