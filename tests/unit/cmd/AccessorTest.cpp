// What report commands read from a parsed call through their accessors.
#include <gtest/gtest.h>

#include "cmd/TclCmd.h"
#include "cmdlib/ArgParser.h"

namespace {

// Commands register themselves for the life of the process; one of each
// serves all cases.
template <class Cmd>
Cmd& Command(const char* name) {
  static Cmd* command = new Cmd(name, "test", nullptr);
  return *command;
}

cmdlib::ParseOutcome Parse(CommonCmd& cmd, std::vector<std::string> args) {
  return cmdlib::ParseArguments(cmd.state(), args);
}

TEST(Accessors, IntegerFallsBackWhenAbsent) {
  auto& fanin = Command<GetFaninPinsCmd>("get_fanin_pins");
  ASSERT_TRUE(Parse(fanin, {"n1"}).ok);
  EXPECT_EQ(fanin.getLevel(), 1);
  // The declared default is reported as a value.
  ASSERT_TRUE(fanin.getLevelOptional().has_value());
  EXPECT_EQ(*fanin.getLevelOptional(), 1);
  ASSERT_TRUE(Parse(fanin, {"-level", "4", "n1"}).ok);
  EXPECT_EQ(fanin.getLevel(), 4);

  auto& net = Command<ReportNetCmd>("report_net");
  ASSERT_TRUE(Parse(net, {}).ok);
  EXPECT_EQ(net.getThreshold(), 0);
  EXPECT_FALSE(net.getThresholdOptional().has_value());
  EXPECT_EQ(net.getSignificantDigits(), 0);

  auto& port = Command<ReportPortCmd>("report_port");
  ASSERT_TRUE(Parse(port, {}).ok);
  EXPECT_EQ(port.getSignificantDigits(), 2);
}

TEST(Accessors, FlagOptionalIsAlwaysEngaged) {
  auto& check = Command<CheckDesignCmd>("check_design");
  ASSERT_TRUE(Parse(check, {}).ok);
  ASSERT_TRUE(check.getSummaryOptional().has_value());
  EXPECT_FALSE(*check.getSummaryOptional());
  ASSERT_TRUE(Parse(check, {"-sum"}).ok);
  EXPECT_TRUE(check.getSummary());
  EXPECT_TRUE(*check.getSummaryOptional());
  // A new call forgets the previous one.
  ASSERT_TRUE(Parse(check, {}).ok);
  EXPECT_FALSE(check.getSummary());
}

TEST(Accessors, ListsAndStrings) {
  auto& net = Command<ReportNetCmd>("report_net");
  ASSERT_TRUE(Parse(net, {}).ok);
  EXPECT_TRUE(net.getNetList().empty());
  EXPECT_FALSE(net.getNetListOptional().has_value());

  ASSERT_TRUE(Parse(net, {"n1 n2"}).ok);
  EXPECT_EQ(net.getNetList(), (std::vector<std::string>{"n1", "n2"}));
  ASSERT_TRUE(Parse(net, {"n1", "n2", "a b"}).ok);
  EXPECT_EQ(net.getNetList(), (std::vector<std::string>{"n1", "n2", "a", "b"}));

  auto& lib = Command<ReportLibCmd>("report_lib");
  ASSERT_TRUE(Parse(lib, {}).ok);
  EXPECT_FALSE(lib.getLibnameOptional().has_value());
  EXPECT_EQ(lib.getLibname(), "");
  ASSERT_TRUE(Parse(lib, {"mylib", "AND2", "OR2", "-op_cond", "typ"}).ok);
  EXPECT_EQ(lib.getLibname(), "mylib");
  EXPECT_EQ(lib.getCellList(), (std::vector<std::string>{"AND2", "OR2"}));
  EXPECT_EQ(lib.getOpCondName(), "typ");
}

TEST(Parser, CountsAndRejects) {
  auto& tree = Command<ReportBufferTreeCmd>("report_buffer_tree");
  ASSERT_TRUE(Parse(tree, {"-from", "a", "-from", "b"}).ok);
  EXPECT_EQ(tree.getOptionCount("from"), 2);
  EXPECT_EQ(tree.getFrom(), (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(tree.getOptionCount("net"), 0);

  auto outcome = Parse(tree, {"-depth", "x"});
  EXPECT_FALSE(outcome.ok);
  EXPECT_NE(outcome.error.find("-depth"), std::string::npos);
  outcome = Parse(tree, {"surplus"});
  EXPECT_FALSE(outcome.ok);
  EXPECT_NE(outcome.error.find("report_buffer_tree"), std::string::npos);
  outcome = Parse(tree, {"-help"});
  EXPECT_TRUE(outcome.ok);
  EXPECT_TRUE(outcome.help);
  // An unbalanced list is refused, not split.
  auto& net = Command<ReportNetCmd>("report_net");
  EXPECT_FALSE(Parse(net, {"{a b"}).ok);
}

TEST(Parser, ExactNameBeatsLongerPrefixMatch) {
  // "-min" is both a name and a prefix of no other; "-max" is a prefix of two.
  auto& net = Command<ReportNetCmd>("report_net");
  ASSERT_TRUE(Parse(net, {"-min"}).ok);
  EXPECT_TRUE(net.getMin());
  auto outcome = Parse(net, {"-max"});
  EXPECT_FALSE(outcome.ok);
  EXPECT_NE(outcome.error.find("-max_toggle_rate"), std::string::npos);
  EXPECT_NE(outcome.error.find("-max_capacitance"), std::string::npos);
}

}  // namespace
