// The one number formatter of report_lib that does not follow the stream:
// unset values (-1 and below) give the default text, others "%f" of the
// value in the given unit.
#include <gtest/gtest.h>

#include "library/ReportLibSections.h"

namespace {

TEST(GetDoubleAttrString, UnsetValuesGiveTheDefaultText) {
  EXPECT_EQ(GetDoubleAttrString(-1.0, 1.0, " "), " ");
  EXPECT_EQ(GetDoubleAttrString(-1.0, 1e-12, "n/a"), "n/a");
  // No absolute value is taken: anything at or below about -1 counts.
  EXPECT_EQ(GetDoubleAttrString(-5.0, 1.0, " "), " ");
  EXPECT_EQ(GetDoubleAttrString(-0.9999999, 1.0, " "), " ");
}

TEST(GetDoubleAttrString, SetValuesAreDividedByTheScale) {
  EXPECT_EQ(GetDoubleAttrString(0.0, 1.0, " "), "0.000000");
  EXPECT_EQ(GetDoubleAttrString(2e-15, 1e-15, " "), "2.000000");
  EXPECT_EQ(GetDoubleAttrString(0.25, 1.0, " "), "0.250000");
  // Just above the threshold of unset, a value prints.
  EXPECT_EQ(GetDoubleAttrString(-0.99, 1.0, " "), "-0.990000");
  // A huge value prints whole, not cut at a buffer's end.
  const std::string huge = GetDoubleAttrString(1e300, 1.0, " ");
  EXPECT_EQ(huge.size(), 301u + 7u);
  EXPECT_EQ(huge.substr(huge.size() - 7), ".000000");
}

}  // namespace
