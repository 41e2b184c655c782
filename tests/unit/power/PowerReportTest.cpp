// The power tables and their number formats.
#include <gtest/gtest.h>

#include <cmath>
#include <regex>
#include <set>
#include <string>

#include "format/PowerReport.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/cdm/StageType.h"
#include "sdc/SdcStore.h"
#include "support/CaptureResult.h"
#include "support/DesignTestUtil.h"
#include "support/SdcTestUtil.h"

namespace {

using formattest::Blanks;
using formattest::CaptureResult;
using formattest::Dashes;
using sdctest::DataPath;

TEST(PowerFormat, DigitsFallBackToTheDefaultBelowOne) {
  PowerReport report;  // three digits unless told otherwise
  EXPECT_EQ(report.FloatToScientific(1.5e-3f, 0, 1.0f), "1.500e-03");
  EXPECT_EQ(report.FloatToScientific(1.5e-3f, -2, 1.0f), "1.500e-03");
  EXPECT_EQ(report.FloatToScientific(1.5e-3f, 1, 1.0f), "1.5e-03");
  report.SetDigits(5);
  EXPECT_EQ(report.FloatToScientific(2.5f, 0, 1e-3f), "2.50000e-03");
  EXPECT_EQ(report.FloatToFix(0.125f, 0, 1.0f), "0.12500");
  EXPECT_EQ(report.FloatToDefault(0.000123456f, 0, 1.0f), "0.00012346");
  EXPECT_EQ(report.FloatToPercent(0.5f, 0, 1.0f), "50.00000%");
}

TEST(PowerFormat, NotationsAndFactors) {
  PowerReport report(3);
  EXPECT_EQ(report.FloatToDefault(1234567.0f, 3, 1.0f), "1.23e+06");
  EXPECT_EQ(report.FloatToDefault(0.5f, 3, 4.0f), "2");
  EXPECT_EQ(report.FloatToFix(1.23456f, 2, 1.0f), "1.23");
  EXPECT_EQ(report.FloatToFix(2e-14f, 4, 1e12f), "0.0200");
  EXPECT_EQ(report.FloatToPercent(0.25f, 1, 1.0f), "25.0%");
  EXPECT_EQ(report.FloatToPercent(0.25f, 1, 2.0f), "50.0%");
  EXPECT_EQ(report.FloatToScientific(0.0f, 0, 1.0f), "0.000e+00");
}

TEST(PowerFormat, ProductsAreSinglePrecision) {
  PowerReport report(9);
  // In double precision a third times 3 would print 1.000000030e+00.
  EXPECT_EQ(report.FloatToScientific(1.0f / 3.0f, 0, 3.0f), "1.000000000e+00");
  // A third as a float is 0.3333333433; times 100 that is 33.33333433,
  // which rounds to the float 33.33333588 (floats step by 2^-18 there).
  EXPECT_EQ(report.FloatToPercent(1.0f / 3.0f, 6, 1.0f), "33.333336%");
}

TEST(PowerRecords, TotalSumAndOrigins) {
  cdm::PowerResult sum;
  EXPECT_EQ(sum.Total(), 0.0f);
  sum += cdm::PowerResult{1.0f, 2.0f, 4.0f};
  sum += cdm::PowerResult{8.0f, 16.0f, 32.0f};
  EXPECT_EQ(sum.internal, 9.0f);
  EXPECT_EQ(sum.switching, 18.0f);
  EXPECT_EQ(sum.leakage, 36.0f);
  EXPECT_EQ(sum.Total(), 63.0f);
  using cdm::PwrActivityOrigin;
  EXPECT_STREQ(cdm::OriginToString(PwrActivityOrigin::kUser), "user");
  EXPECT_STREQ(cdm::OriginToString(PwrActivityOrigin::kSaif), "saif");
  EXPECT_STREQ(cdm::OriginToString(PwrActivityOrigin::kVcd), "vcd");
  EXPECT_STREQ(cdm::OriginToString(PwrActivityOrigin::kClock), "clock");
  EXPECT_STREQ(cdm::OriginToString(PwrActivityOrigin::kPropagated), "propagated");
  EXPECT_STREQ(cdm::OriginToString(PwrActivityOrigin::kDefault), "default");
  EXPECT_STREQ(cdm::OriginToString(PwrActivityOrigin::kConstant), "constant");
  EXPECT_STREQ(cdm::OriginToString(static_cast<PwrActivityOrigin>(200)), "unknown");
}

TEST(PowerRecords, StageNamesBothWays) {
  const char* names[] = {"Remapping",    "PreOpt",           "DRVFixer", "TailWnsOpt",
                         "WnsOpt",       "TNSOpt",           "Resynth",  "Detail",
                         "AreaRecovery", "AreaRecovery_Sub", "Tail",     "Unknown"};
  ASSERT_EQ(stage_type_name_map.size(), 12u);
  for (int code = 0; code < 12; ++code)
    EXPECT_EQ(stage_type_name_map.at(static_cast<StageType>(code)), names[code]);
  ASSERT_EQ(stage_name_type_map.size(), 11u);
  for (int code = 0; code < 11; ++code)
    EXPECT_EQ(stage_name_type_map.at(names[code]), static_cast<StageType>(code));
  EXPECT_EQ(stage_name_type_map.count("Unknown"), 0u);
}

class PowerTables : public designtest::DesignTest {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_NE(liberty::ReadLibertyFile(&root_, DataPath("timer_small.lib"), error), nullptr)
        << error;
    design_ = Load(
        "module pt (a, y);\n"
        "  input a; output y;\n"
        "  wire n1, n2;\n"
        "  BUF u1 (.A(a), .Y(n1));\n"
        "  BUF u2 (.A(n1), .Y(n2));\n"
        "  BUF u3 (.A(n2), .Y(y));\n"
        "endmodule\n");
  }
  cdm::Design* design_ = nullptr;
};

TEST_F(PowerTables, InstancesWithRunningTotal) {
  ASSERT_NE(design_, nullptr);
  PowerReport report(3);
  std::map<const cdm::Cell*, cdm::PowerResult> cells;
  cells[design_->FindCell("u1")] = {1e-3f, 2e-4f, 3e-9f};
  cells[design_->FindCell("u2")] = {5e-4f, 0.0f, 1e-9f};
  CaptureResult out;
  report.PrintInstsPowerInfo(cells);
  // Cell is as wide as "Total 2 cells" and four; the numbers take their
  // heading's width and four.
  std::string expected = "\n";
  expected += "Cell" + Blanks(13) + "Internal Power" + Blanks(4) + "Switching Power" + Blanks(4) +
              "Leakage Power" + Blanks(4) + "Total Power" + Blanks(4) + "Attrs\n";
  expected += Dashes(94) + "\n";
  expected += "u1" + Blanks(15) + "1.000e-03" + Blanks(9) + "2.000e-04" + Blanks(10) + "3.000e-09" +
              Blanks(8) + "1.200e-03\n";
  expected += "u2" + Blanks(15) + "5.000e-04" + Blanks(9) + "0.000e+00" + Blanks(10) + "1.000e-09" +
              Blanks(8) + "5.000e-04\n";
  expected += Dashes(95) + "\n";
  expected += "Total 2 cells" + Blanks(4) + "1.500e-03" + Blanks(9) + "2.000e-04" + Blanks(10) +
              "4.000e-09" + Blanks(8) + "1.700e-03\n";
  expected += Dashes(94) + "\n";
  EXPECT_EQ(out.Take(), expected);
}

TEST_F(PowerTables, EmptyMapsPrintOnlyTheTotalRow) {
  PowerReport report(2);
  CaptureResult out;
  report.PrintInstsPowerInfo({});
  std::string expected = "\n";
  expected += "Cell" + Blanks(13) + "Internal Power" + Blanks(4) + "Switching Power" + Blanks(4) +
              "Leakage Power" + Blanks(4) + "Total Power" + Blanks(4) + "Attrs\n";
  expected += Dashes(94) + "\n" + Dashes(95) + "\n";
  expected += "Total 0 cells" + Blanks(4) + "0.00e+00" + Blanks(10) + "0.00e+00" + Blanks(11) +
              "0.00e+00" + Blanks(9) + "0.00e+00\n";
  expected += Dashes(94) + "\n";
  EXPECT_EQ(out.Take(), expected);

  report.PrintNetsPowerInfo({});
  // Net: "Total 0 nets" and four; Switching Power its heading and four.
  expected = "\n";
  expected += "Net" + Blanks(13) + "Vdd" + Blanks(4) + "Net Load" + Blanks(4) + "Static Prob." +
              Blanks(4) + "Toggle Rate" + Blanks(4) + "Switching Power" + Blanks(4) + "Attrs\n";
  expected += Dashes(93) + "\n" + Dashes(94) + "\n";
  expected += "Total 0 nets" + Blanks(4) + Blanks(7 + 12 + 16 + 15) + "0.00e+00\n";
  expected += Dashes(93) + "\n";
  EXPECT_EQ(out.Take(), expected);
}

TEST_F(PowerTables, NetsWithVddLoadProbabilityRateAndOrigin) {
  ASSERT_NE(design_, nullptr);
  PowerReport report(3);
  std::map<const cdm::Net*, cdm::SwitchPowerRecord> nets;
  nets[design_->FindNet("n1")] = {1.8f, 2e-14f,   0.2f,
                                  0.5f, 6.48e-6f, cdm::PwrActivityOrigin::kDefault};
  nets[design_->FindNet("n2")] = {1.2f,  1e-14f,  0.1f,
                                  0.25f, 7.2e-7f, cdm::PwrActivityOrigin::kUser};
  CaptureResult out;
  report.PrintNetsPowerInfo(nets);
  // Widths: Net 16 ("Total 2 nets"), Vdd 9 ("1.800"), Net Load 12,
  // Static Prob. 16, Toggle Rate 15, Switching Power 19, Attrs 11 ("default").
  std::string expected = "\n";
  expected += "Net" + Blanks(13) + "Vdd" + Blanks(6) + "Net Load" + Blanks(4) + "Static Prob." +
              Blanks(4) + "Toggle Rate" + Blanks(4) + "Switching Power" + Blanks(4) + "Attrs\n";
  expected += Dashes(97) + "\n";
  expected += "n1" + Blanks(14) + "1.800" + Blanks(4) + "0.0200" + Blanks(6) + "0.5000" +
              Blanks(10) + "0.20000" + Blanks(8) + "6.480e-06" + Blanks(10) + "default\n";
  expected += "n2" + Blanks(14) + "1.200" + Blanks(4) + "0.0100" + Blanks(6) + "0.2500" +
              Blanks(10) + "0.10000" + Blanks(8) + "7.200e-07" + Blanks(10) + "user\n";
  expected += Dashes(98) + "\n";
  expected += "Total 2 nets" + Blanks(4) + Blanks(9 + 12 + 16 + 15) + "7.200e-06\n";
  expected += Dashes(97) + "\n";
  EXPECT_EQ(out.Take(), expected);
}

// The header reads the database's own root and constraint store. The root
// is shared by the binary's tests: the lines of libraries other tests read
// into it are left out of the comparison, so that these pass in any order.
class PowerHeader : public sdctest::SdcTest {
 protected:
  static std::string WithoutOtherLibraries(std::string text, const std::set<std::string>& own) {
    for (const cdm::LibertyLib* lib : Root()->LibertyLibs()) {
      if (own.count(lib->Name())) continue;
      const std::string line = "    " + lib->Name() + " (File: ";
      const size_t at = text.find(line);
      if (at != std::string::npos) text.erase(at, text.find('\n', at) + 1 - at);
    }
    return text;
  }
};

const char* kStars = "******************************************";

TEST_F(PowerHeader, GroupTableUnderTheHeader) {
  cdm::Design* design = Load(
      "module ph_top (a, y);\n"
      "  input a; output y;\n"
      "  BUF u1 (.A(a), .Y(y));\n"
      "endmodule\n",
      "ph_top");
  ASSERT_NE(design, nullptr);
  const std::string file = DataPath("timer_small.lib");
  PowerReport report(3);
  CaptureResult out;
  report.PrintPowerInfo({4e-3f, 3e-3f, 1e-3f}, {1e-3f, 5e-4f, 5e-4f}, {1e-3f, 1e-3f, 0.0f}, {}, {});
  std::string text = out.Take();
  const std::string date = "Date  : ";
  const size_t at = text.find(date);
  ASSERT_NE(at, std::string::npos) << text;
  const size_t end = text.find('\n', at);
  // The date is that of ctime, less its newline.
  EXPECT_TRUE(std::regex_match(
      text.substr(at + date.size(), end - at - date.size()),
      std::regex("[A-Z][a-z]{2} [A-Z][a-z]{2} [ 1-3][0-9] [0-2][0-9]:[0-5][0-9]:[0-6][0-9] "
                 "[0-9]{4}")))
      << text;
  text.replace(at + date.size(), end - at - date.size(), "DATE");

  // timer_small has no operating conditions; no model is set on the design.
  std::string expected =
      std::string(kStars) + "\nReport: power\nDesign: ph_top\nVersion: \n" + "Date  : DATE\n" +
      kStars + "\nLibrary(s) Used:\n\n" + "    timer_small (File: " + file + ")\n\n" +
      "Operating Conditions: unknown   Library: timer_small\n" + "Wire Load Model Mode: top\n\n" +
      "Design        Wire Load Model            Library\n" + Dashes(48) + "\n" +
      "ph_top       unknown       timer_small\n\n";
  // The table: Power Group 17, the powers 18, 19, 17, 15, the percent 11,
  // Attrs 9. The shares are of the total given, not of the groups' sum.
  expected += "\nPower Group" + Blanks(6) + "Internal Power" + Blanks(4) + "Switching Power" +
              Blanks(4) + "Leakage Power" + Blanks(4) + "Total Power" + Blanks(4) + "(  %  )" +
              Blanks(4) + "Attrs\n";
  expected += Dashes(105) + "\n";
  expected += "Sequential" + Blanks(7) + "1.000e-03" + Blanks(9) + "5.000e-04" + Blanks(10) +
              "5.000e-04" + Blanks(8) + "2.000e-03" + Blanks(6) + "25.000%\n";
  expected += "Combinational" + Blanks(4) + "1.000e-03" + Blanks(9) + "1.000e-03" + Blanks(10) +
              "0.000e+00" + Blanks(8) + "2.000e-03" + Blanks(6) + "25.000%\n";
  expected += "Macro" + Blanks(12) + "0.000e+00" + Blanks(9) + "0.000e+00" + Blanks(10) +
              "0.000e+00" + Blanks(8) + "0.000e+00" + Blanks(6) + "0.000%\n";
  expected += "Pad" + Blanks(14) + "0.000e+00" + Blanks(9) + "0.000e+00" + Blanks(10) +
              "0.000e+00" + Blanks(8) + "0.000e+00" + Blanks(6) + "0.000%\n";
  expected += Dashes(106) + "\n";
  expected += "Total" + Blanks(12) + "4.000e-03" + Blanks(9) + "3.000e-03" + Blanks(10) +
              "1.000e-03" + Blanks(8) + "8.000e-03\n";
  expected += Dashes(105) + "\n";
  EXPECT_EQ(WithoutOtherLibraries(text, {"timer_small"}), expected);
}

TEST_F(PowerHeader, ConditionsAndModelWhenSet) {
  ASSERT_NE(Load("module ph_two (a);\n  input a;\nendmodule\n", "ph_two"), nullptr);
  std::string error;
  cdm::LibertyLib* conn = liberty::ReadLibertyFile(Root(), DataPath("conn_small.lib"), error);
  ASSERT_NE(conn, nullptr) << error;
  cdm::LibertyLib* timer = Root()->GetDefaultLiberty();
  Root()->SetDefaultLiberty(conn);
  Store().Design().wire_load[cdm::MinMax::max_->index()] = conn->GetWireLoad("large");
  PowerReport report;
  CaptureResult out;
  report.PrintHeaderInfo();
  const std::string text = WithoutOtherLibraries(out.Take(), {"timer_small", "conn_small"});
  Store().Design().wire_load[cdm::MinMax::max_->index()] = nullptr;
  Root()->SetDefaultLiberty(timer);
  EXPECT_NE(text.find("Library(s) Used:\n\n    timer_small (File: " + DataPath("timer_small.lib") +
                      ")\n    conn_small (File: " + DataPath("conn_small.lib") + ")\n\n"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("\nOperating Conditions: typical   Library: conn_small\n"), std::string::npos)
      << text;
  EXPECT_NE(text.find("\nph_two       large       conn_small\n\n"), std::string::npos) << text;
  // The date line ends in one newline.
  EXPECT_EQ(text.find("\n\n******"), std::string::npos) << text;
}

}  // namespace
