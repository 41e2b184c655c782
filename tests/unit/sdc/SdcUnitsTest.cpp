// Units of SDC values and the numbers write_sdc prints.
#include <gtest/gtest.h>

#include "sdc/SdcUnits.h"
#include "sdc/SdcWriter.h"
#include "support/SdcTestUtil.h"

namespace {

using sta::sdc::SdcUnits;

TEST(SdcUnitsTest, UnitsReadWithOrWithoutANumberAndAPrefix) {
  SdcUnits units;
  std::string error;
  EXPECT_FALSE(units.AnySet());
  ASSERT_TRUE(units.Set(SdcUnits::kTime, "ps", error)) << error;
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kTime), 1e-12);
  EXPECT_EQ(units.UserText(SdcUnits::kTime), "1ps");
  ASSERT_TRUE(units.Set(SdcUnits::kCapacitance, "10fF", error)) << error;
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kCapacitance), 1e-14);
  EXPECT_EQ(units.UserText(SdcUnits::kCapacitance), "10fF");
  ASSERT_TRUE(units.Set(SdcUnits::kTime, "1.23456789ns", error)) << error;
  EXPECT_EQ(units.UserText(SdcUnits::kTime), "1.23456789ns");            // written back as given
  ASSERT_TRUE(units.Set(SdcUnits::kCapacitance, "ff", error)) << error;  // femto farad
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kCapacitance), 1e-15);
  ASSERT_TRUE(units.Set(SdcUnits::kResistance, "kOhm", error)) << error;
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kResistance), 1e3);
  ASSERT_TRUE(units.Set(SdcUnits::kPower, "mW", error)) << error;
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kPower), 1e-3);
  ASSERT_TRUE(units.Set(SdcUnits::kVoltage, "V", error)) << error;
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kVoltage), 1.0);
  EXPECT_TRUE(units.AnySet());
}

TEST(SdcUnitsTest, ANoUnitIsRefusedAndChangesNothing) {
  SdcUnits units;
  std::string error;
  ASSERT_TRUE(units.Set(SdcUnits::kTime, "ns", error));
  for (const char* bad : {"parsec", "nF", "xs", "-1ns", "0ns", ""}) {
    error.clear();
    EXPECT_FALSE(units.Set(SdcUnits::kTime, bad, error)) << bad;
    EXPECT_FALSE(error.empty());
  }
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kTime), 1e-9);
}

// Makes `lib` the default library while it lives. The database's root
// outlives each test: a library another test of the binary read stays the
// default one.
class DefaultLibrary {
 public:
  explicit DefaultLibrary(cdm::LibertyLib* lib)
      : kept_(cdm::DbManager::GetRoot()->GetDefaultLiberty()) {
    cdm::DbManager::GetRoot()->SetDefaultLiberty(lib);
  }
  ~DefaultLibrary() { cdm::DbManager::GetRoot()->SetDefaultLiberty(kept_); }
  DefaultLibrary(const DefaultLibrary&) = delete;
  DefaultLibrary& operator=(const DefaultLibrary&) = delete;

 private:
  cdm::LibertyLib* kept_;
};

TEST(SdcUnitsTest, WithoutLibraryOrSetUnitsValuesAreNanosecondsPicofaradsKiloohms) {
  DefaultLibrary none(nullptr);
  SdcUnits units;
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kTime), 1e-9);
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kCapacitance), 1e-12);
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kResistance), 1e3);
}

TEST(SdcWriterValueTest, TheFewestDigitsThatReadBackToTheSameFloat) {
  using sta::sdc::SdcWriter;
  EXPECT_EQ(SdcWriter::Value(0.092e-9f, 1e-9), "0.092");
  EXPECT_EQ(SdcWriter::Value(5e-9f, 1e-9), "5");
  EXPECT_EQ(SdcWriter::Value(5000.0f, 1.0), "5000");
  EXPECT_EQ(SdcWriter::Value(-0.5e-12f, 1e-12), "-0.5");
  EXPECT_EQ(SdcWriter::Value(0.0f, 1e-9), "0");
  for (float value : {1.0f / 3.0f, 0.1f, 123456.7f, 1e-7f}) {
    const std::string text = SdcWriter::Value(value * 1e-9f, 1e-9);
    EXPECT_EQ(static_cast<float>(std::strtod(text.c_str(), nullptr) * 1e-9), value * 1e-9f) << text;
  }
}

}  // namespace
