// The figures of a wire under a model: length from the fan-out, times the
// per-unit values in the model's library units.
#include <gtest/gtest.h>

#include "hostapi/cdm/LibRecords.h"
#include "parasitics/WireLoadEstimator.h"

namespace {

cdm::WireLoad Model() {
  cdm::WireLoad model;
  model.resistance = 0.5;    // per unit length, in the library's unit (none: kohm)
  model.capacitance = 0.01;  // pF
  model.slope = 0.5;
  model.points = {{1, 1.0}, {2, 2.0}, {4, 3.0}};
  return model;
}

TEST(WireFiguresTest, LengthFromThePointsBetweenThemAndBeyondOnTheSlope) {
  const cdm::WireLoad model = Model();
  EXPECT_DOUBLE_EQ(parasitics::FiguresFor(&model, 1).length, 1.0);
  EXPECT_DOUBLE_EQ(parasitics::FiguresFor(&model, 3).length, 2.5);  // between 2 and 4
  EXPECT_DOUBLE_EQ(parasitics::FiguresFor(&model, 6).length, 4.0);  // 3 + 2 * 0.5
  const parasitics::WireFigures figures = parasitics::FiguresFor(&model, 4);
  EXPECT_NEAR(figures.capacitance, 3.0 * 0.01e-12, 1e-20);
  EXPECT_NEAR(figures.resistance, 3.0 * 0.5e3, 1e-9);
}

TEST(WireFiguresTest, NoModelOrNoLoadsIsNoWire) {
  const cdm::WireLoad model = Model();
  EXPECT_EQ(parasitics::FiguresFor(nullptr, 3).capacitance, 0.0);
  EXPECT_EQ(parasitics::FiguresFor(&model, 0).capacitance, 0.0);
  cdm::WireLoad slope_only;
  slope_only.capacitance = 1.0;
  slope_only.slope = 2.0;
  EXPECT_DOUBLE_EQ(parasitics::FiguresFor(&slope_only, 3).length, 6.0);
}

}  // namespace
