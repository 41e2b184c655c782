// The message layer as the reports rely on it: line endings, literal text
// through "%s", the tagged messages the module issues, and redirection.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "hostapi/msg/Msg.h"
#include "msg/ResultChannel.h"

namespace {

// Captures the result channel for the life of the object.
class Capture {
 public:
  Capture() {
    msg::PushResultSink([this](std::string_view text) { text_.append(text); });
  }
  ~Capture() { msg::PopResultSink(); }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

TEST(PrintResult, EndsEveryTextWithOneNewline) {
  Capture out;
  msg::Print_Result("Total %d cells", 3);
  msg::Print_Result("two\nlines\n");  // its own newline, then the layer's
  msg::InsertEmptyLine();
  msg::Print_Result("%s", "");
  EXPECT_EQ(out.text(), "Total 3 cells\ntwo\nlines\n\n\n\n");
}

TEST(PrintResult, PercentInAnArgumentIsPrintedAsItIs) {
  Capture out;
  msg::Print_Result("%s", "load 50% of %d");
  msg::Print_Result("%-8s|", "a%b");
  EXPECT_EQ(out.text(), "load 50% of %d\na%b     |\n");
}

// A report that composed its text itself passes it alone, as the format:
// only "%%" is a conversion there; nothing may read an argument that was
// never passed.
TEST(PrintResult, TextAloneReadsNoArgument) {
  Capture out;
  msg::Print_Result("Design : pct%s and %d, %5.2f, %n%%");
  msg::Print_Result("100%% done, 50%%% left, %");
  msg::Print_Result(nullptr);
  EXPECT_EQ(out.text(),
            "Design : pct%s and %d, %5.2f, %n%\n"
            "100% done, 50%% left, %\n"
            "\n");
}

TEST(PrintResult, LongTextIsNotCut) {
  Capture out;
  std::string longText(10000, 'x');
  msg::Print_Result("%s", longText.c_str());
  EXPECT_EQ(out.text(), longText + "\n");
}

TEST(ReportMsg, TheModulesTagsInTheirShapes) {
  Capture out;
  msg::ReportMsg(COMMAND_001, "report_lib", "no lib specified!");
  msg::ReportMsg(COMMAND_001, "report_area", "Current design is not defined");
  msg::ReportMsg(COMMAND_010, "net", "from");
  msg::ReportMsg(COMMON_001, "u1/zz", "top");
  msg::ReportMsg(Report_001, "report_port", "-nosplit");
  msg::ReportMsg(Report_002, "in9", "top");
  EXPECT_EQ(out.text(),
            "Error: report_lib: no lib specified! (COMMAND_001)\n"
            "Error: report_area: Current design is not defined (COMMAND_001)\n"
            "Error: option '-net' cannot be used together with option '-from'. (COMMAND_010)\n"
            "Warning: Cannot find object 'u1/zz' in design 'top'. (COMMON_001)\n"
            "Information: report_port: option '-nosplit' is accepted and ignored by this "
            "tool. (Report_001)\n"
            "Warning: Cannot find port 'in9' in design 'top'. (Report_002)\n");
}

TEST(ReportMsg, ArgumentsAreNotFormats) {
  Capture out;
  msg::ReportMsg(COMMAND_001, "report_lib", "bad value '%s%d'");
  EXPECT_EQ(out.text(), "Error: report_lib: bad value '%s%d' (COMMAND_001)\n");
}

TEST(ReportMsg, TagWithoutTextStillNamesTheTag) {
  Capture out;
  msg::ReportMsg(SYNTH_000);
  EXPECT_NE(out.text().find("(SYNTH_000)"), std::string::npos);
  EXPECT_EQ(out.text().back(), '\n');
}

TEST(TagNames, PositionsOfTheTable) {
  EXPECT_EQ(MSG_TAG_COUNT, 686);
  EXPECT_EQ(COMMAND_001, 34);
  EXPECT_EQ(COMMAND_010, 43);
  EXPECT_EQ(COMMON_001, 52);
  EXPECT_EQ(Report_001, 394);
  EXPECT_EQ(Report_002, 395);
  EXPECT_STREQ(msg::TagName(ALL_INPUTS_001), "ALL_INPUTS_001");
  EXPECT_STREQ(msg::TagName(ECO_030), "ECO_030");
  EXPECT_EQ(ECO_030, 111);
  EXPECT_STREQ(msg::TagName(Sta_Report_002), "Sta_Report_002");
  EXPECT_STREQ(msg::TagName(WIRE_LOAD_005), "WIRE_LOAD_005");
  EXPECT_EQ(WIRE_LOAD_005, 685);
  EXPECT_STREQ(msg::TagName(static_cast<MsgTag>(686)), "");
  EXPECT_STREQ(msg::TagName(static_cast<MsgTag>(-1)), "");
}

// Every name of the table, from the runs of numbers each family holds: a run
// starts where the one before ends, and each name sits at its position.
TEST(TagNames, EveryRunOfEveryFamily) {
  struct Run {
    int position;
    const char* family;
    int first;
    int last;
  };
  const Run runs[] = {
      {0, "ALL_INPUTS", 1, 2},
      {2, "CHARACTERIZE", 1, 2},
      {4, "CLOCK", 1, 30},
      {34, "COMMAND", 1, 18},
      {52, "COMMON", 1, 27},
      {79, "DATABASE", 0, 3},
      {83, "DATA_CHECK", 1, 1},
      {84, "DISABLE_TIMING", 1, 2},
      {86, "ECO", 1, 25},
      {111, "ECO", 30, 78},
      {160, "GET_LIB", 1, 1},
      {161, "GET_LIB_CELLS", 1, 1},
      {162, "GET_LIB_PINS", 1, 1},
      {163, "GET_PORTS", 1, 3},
      {166, "GUI", 1, 1},
      {167, "HLS", 0, 0},
      {168, "HLS", 300, 304},
      {173, "HLS", 401, 402},
      {175, "HLS", 500, 501},
      {177, "HLS", 601, 604},
      {181, "HLS", 700, 716},
      {198, "LEFDEF", 1, 13},
      {211, "LIBERTY", 1, 19},
      {230, "MAX_CAPACITANCE", 1, 3},
      {233, "MAX_FANOUT", 1, 1},
      {234, "MAX_TRANSITION", 1, 2},
      {236, "MIN_CAP", 1, 1},
      {237, "OPERATING_CONDITIONS", 1, 5},
      {242, "PHYSICAL", 1, 1},
      {243, "PHYSICAL_DPL", 1, 15},
      {258, "PHYSICAL_DRT", 1, 47},
      {305, "PHYSICAL_GPL", 1, 13},
      {318, "PHYSICAL_GRT", 1, 7},
      {325, "PHYSICAL_IFP", 1, 11},
      {336, "PHYSICAL_PPL", 1, 13},
      {349, "PHYSICAL_RMP", 1, 15},
      {364, "PHYSICAL_RSZ", 1, 17},
      {381, "PORT_DIRECTION", 1, 1},
      {382, "PORT_EXT_LOAD", 1, 1},
      {383, "POWER", 1, 7},
      {390, "QUERY", 1, 4},
      {394, "Report", 1, 2},
      {396, "SDC", 1, 16},
      {412, "SET_DELAY", 1, 5},
      {417, "SET_DRIVING_CELL", 1, 7},
      {424, "SET_IDEAL_NETWORK", 1, 2},
      {426, "SET_LOAD", 1, 1},
      {427, "SET_LOGIC_DC", 1, 1},
      {428, "SET_UNITS", 1, 2},
      {430, "STA", 1, 21},
      {451, "SYNTH", 0, 131},
      {583, "Sta_Report", 1, 2},
      {585, "SuppCell", 1, 18},
      {603, "TimingOpt", 1, 64},
      {667, "TopologyGenerator", 1, 14},
      {681, "WIRE_LOAD", 1, 5},
  };
  int next = 0;
  for (const Run& run : runs) {
    EXPECT_EQ(run.position, next) << run.family;
    for (int number = run.first; number <= run.last; ++number) {
      char name[64];
      std::snprintf(name, sizeof name, "%s_%03d", run.family, number);
      EXPECT_STREQ(msg::TagName(static_cast<MsgTag>(next)), name) << "position " << next;
      ++next;
    }
  }
  EXPECT_EQ(next, MSG_TAG_COUNT);
}

TEST(ResultChannel, InnerCaptureRestoresTheOuterOne) {
  Capture outer;
  msg::Print_Result("one");
  {
    Capture inner;
    msg::Print_Result("two");
    EXPECT_EQ(inner.text(), "two\n");
  }
  msg::Print_Result("three");
  EXPECT_EQ(outer.text(), "one\nthree\n");
}

TEST(ResultChannel, PopWithoutPushIsHarmless) {
  msg::PopResultSink();
  Capture out;
  msg::Print_Result("still captured");
  EXPECT_EQ(out.text(), "still captured\n");
}

}  // namespace
