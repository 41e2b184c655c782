// The host's message function: one format with or without a place, the
// place of the running script when the message has none, counts by
// severity and tag, and the limit per tag with its note.
#include <gtest/gtest.h>

#include <string>

#include "msg/HostMsg.h"
#include "msg/MessageBook.h"
#include "support/CaptureResult.h"

namespace {

class HostMsgTest : public ::testing::Test {
 protected:
  void SetUp() override { msg::MessageBook::Get().Reset(); }
  void TearDown() override {
    msg::SetLocationFinder(nullptr);
    msg::MessageBook::Get().SetLimit(QUERY_001, -1);
    msg::MessageBook::Get().Reset();
  }
  formattest::CaptureResult out_;
};

TEST_F(HostMsgTest, OneFormatWithAndWithoutAPlace) {
  msg::HostMsg(QUERY_001, {"cells", "u_%s*"});
  msg::HostMsg(QUERY_001, {"nets", "n1"}, msg::Location{"top.v", 12});
  msg::HostMsg(QUERY_001, {"ports"}, msg::Location{"top.v", 0});
  EXPECT_EQ(out_.Take(),
            "Warning: No cells matched 'u_%s*' (QUERY_001)\n"
            "Warning: top.v:12: No nets matched 'n1' (QUERY_001)\n"
            "Warning: top.v: No ports matched '%s' (QUERY_001)\n");
}

TEST_F(HostMsgTest, AMessageWithoutAPlaceTakesTheScripts) {
  int asked = 0;
  msg::SetLocationFinder([&asked](msg::Location& where) {
    ++asked;
    where = msg::Location{"flow.tcl", 7};
    return true;
  });
  msg::HostMsg(QUERY_001, {"libs", "x"});
  msg::HostMsg(QUERY_001, {"libs", "y"}, msg::Location{"own.lib", 3});
  EXPECT_EQ(out_.Take(),
            "Warning: flow.tcl:7: No libs matched 'x' (QUERY_001)\n"
            "Warning: own.lib:3: No libs matched 'y' (QUERY_001)\n");
  EXPECT_EQ(asked, 1);
}

TEST_F(HostMsgTest, CountsAndLimitPerTag) {
  msg::MessageBook& book = msg::MessageBook::Get();
  book.SetLimit(QUERY_001, 2);
  for (const char* name : {"a", "b", "c", "d"}) msg::HostMsg(QUERY_001, {"cells", name});
  msg::ReportMsg(COMMAND_001, "report_lib", "no lib specified!");
  EXPECT_EQ(out_.Take(),
            "Warning: No cells matched 'a' (QUERY_001)\n"
            "Warning: No cells matched 'b' (QUERY_001)\n"
            "Information: message QUERY_001 reached its limit of 2; further ones are counted "
            "but not shown.\n"
            "Error: report_lib: no lib specified! (COMMAND_001)\n");
  EXPECT_EQ(book.Count(QUERY_001), 4);
  EXPECT_EQ(book.Count(msg::Severity::kWarning), 4);
  EXPECT_EQ(book.Count(msg::Severity::kError), 1);
  EXPECT_EQ(book.Total(), 5);
  book.Reset();
  EXPECT_EQ(book.Total(), 0);
  msg::HostMsg(QUERY_001, {"cells", "e"});  // counted from 0 again, so shown again
  EXPECT_EQ(out_.Take(), "Warning: No cells matched 'e' (QUERY_001)\n");
}

}  // namespace
