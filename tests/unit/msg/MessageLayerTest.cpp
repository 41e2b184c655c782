// The message layer as the reports rely on it: line endings, literal text
// through "%s", the tagged messages the module issues, and redirection.
#include <gtest/gtest.h>

#include <string>

#include "hostapi/msg/Msg.h"
#include "hostapi/msg/ResultChannel.h"

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
