#include <gtest/gtest.h>

#include <regex>

#include "format/ReportMgr.h"
#include "format/ReportPrint.h"
#include "hostapi/cdm/Pin.h"
#include "support/CaptureResult.h"

namespace {

using formattest::CaptureResult;

TEST(ReportHelpers, PreReportWithoutDesignComplainsOnce) {
  CaptureResult out;
  EXPECT_FALSE(PreReport());
  EXPECT_EQ(out.Take(), "Current Design is not Define\n");
}

TEST(ReportHelpers, TimePatterns) {
  // A zero-padded day for the tables, a blank-padded one for the reports.
  const std::regex zero_day(
      "[A-Z][a-z]{2} [A-Z][a-z]{2} [0-3][0-9] [0-2][0-9]:[0-5][0-9]:[0-6][0-9] [0-9]{4}");
  const std::regex blank_day(
      "[A-Z][a-z]{2} [A-Z][a-z]{2} [ 1-3][0-9] [0-2][0-9]:[0-5][0-9]:[0-6][0-9] [0-9]{4}");
  std::string data = ReportTable().GetData();
  std::string time = GetTime();
  EXPECT_TRUE(std::regex_match(data, zero_day)) << data;
  EXPECT_TRUE(std::regex_match(report::ReportPrint().GetData(), zero_day));
  EXPECT_TRUE(std::regex_match(time, blank_day)) << time;
  // Apart from the padding of the day (and a second ticking over) they agree.
  EXPECT_EQ(data.substr(0, 8), time.substr(0, 8));
  EXPECT_EQ(data[8] == '0' ? ' ' : data[8], time[8]);
}

TEST(ReportHelpers, HeaderBanner) {
  CaptureResult out;
  ReportHeader("timing", "top");
  std::string text = out.Take();
  const std::regex banner(
      "\\*{40}\nReport : timing\nDesign : top\nVersion: \nDate   : [A-Z][a-z]{2} "
      "[^\n]+\n\\*{40}\n");
  EXPECT_TRUE(std::regex_match(text, banner)) << text;
}

TEST(ReportHelpers, PinCapAppendsRiseAndFallWithoutClearing) {
  cdm::Pin unconnected;  // no cell, so no library capacitance
  std::vector<float> caps = {7.0f};
  PinCap(&unconnected, caps);
  PinCap(&unconnected, caps);
  EXPECT_EQ(caps, (std::vector<float>{7.0f, 0.0f, 0.0f, 0.0f, 0.0f}));
}

}  // namespace
