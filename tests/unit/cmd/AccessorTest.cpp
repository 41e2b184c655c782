// What report commands read from a parsed call through their accessors.
#include <gtest/gtest.h>

#include <functional>

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

// Every integer accessor of the module: its fallback when the option is
// absent, whether a declared default shows in the optional, and that a
// given value wins.
TEST(Accessors, EveryIntegerFallback) {
  struct Case {
    const char* what;
    std::function<cmdlib::ParseOutcome(std::vector<std::string>)> parse;
    std::function<int()> get;
    std::function<std::optional<int>()> optional;
    const char* option;
    int fallback;
    bool declared_default;
  };
  auto& fanin = Command<GetFaninPinsCmd>("get_fanin_pins");
  auto& fanout = Command<GetFanoutPinsCmd>("get_fanout_pins");
  auto& constraint = Command<ReportConstraintCmd>("report_constraint");
  auto& port = Command<ReportPortCmd>("report_port");
  auto& cell = Command<ReportCellCmd>("report_cell");
  auto& net = Command<ReportNetCmd>("report_net");
  auto& fanouts = Command<ReportNetFanoutCmd>("report_net_fanout");
  auto& tree = Command<ReportBufferTreeCmd>("report_buffer_tree");
  auto parser = [](CommonCmd& cmd) {
    return [&cmd](std::vector<std::string> args) { return Parse(cmd, std::move(args)); };
  };
  const std::vector<Case> cases = {
      {"fanin level", parser(fanin), [&] { return fanin.getLevel(); },
       [&] { return fanin.getLevelOptional(); }, "-level", 1, true},
      {"fanout level", parser(fanout), [&] { return fanout.getLevel(); },
       [&] { return fanout.getLevelOptional(); }, "-level", 1, true},
      {"constraint digits", parser(constraint), [&] { return constraint.getSignificantDigits(); },
       [&] { return constraint.getSignificantDigitsOptional(); }, "-significant_digits", 2, true},
      {"port digits", parser(port), [&] { return port.getSignificantDigits(); },
       [&] { return port.getSignificantDigitsOptional(); }, "-significant_digits", 2, true},
      {"cell digits", parser(cell), [&] { return cell.getSignificantDigits(); },
       [&] { return cell.getSignificantDigitsOptional(); }, "-significant_digits", 0, false},
      {"net digits", parser(net), [&] { return net.getSignificantDigits(); },
       [&] { return net.getSignificantDigitsOptional(); }, "-significant_digits", 0, false},
      {"net threshold", parser(net), [&] { return net.getThreshold(); },
       [&] { return net.getThresholdOptional(); }, "-threshold", 0, false},
      {"fanout threshold", parser(fanouts), [&] { return fanouts.getThreshold(); },
       [&] { return fanouts.getThresholdOptional(); }, "-threshold", 0, false},
      {"fanout bound", parser(fanouts), [&] { return fanouts.getBound(); },
       [&] { return fanouts.getBoundOptional(); }, "-bound", 0, false},
      {"fanout depth", parser(fanouts), [&] { return fanouts.getDepth(); },
       [&] { return fanouts.getDepthOptional(); }, "-depth", 0, false},
      {"tree depth", parser(tree), [&] { return tree.getDepth(); },
       [&] { return tree.getDepthOptional(); }, "-depth", 0, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    ASSERT_TRUE(c.parse({}).ok);
    EXPECT_EQ(c.get(), c.fallback);
    EXPECT_EQ(c.optional().has_value(), c.declared_default);
    if (c.declared_default) {
      EXPECT_EQ(*c.optional(), c.fallback);
    }
    ASSERT_TRUE(c.parse({c.option, "7"}).ok);
    EXPECT_EQ(c.get(), 7);
    ASSERT_TRUE(c.optional().has_value());
    EXPECT_EQ(*c.optional(), 7);
  }
}

TEST(Accessors, DashListsAbsentAreEmpty) {
  auto& tree = Command<ReportBufferTreeCmd>("report_buffer_tree");
  ASSERT_TRUE(Parse(tree, {"-net", "n1"}).ok);
  EXPECT_TRUE(tree.getFrom().empty());
  EXPECT_FALSE(tree.getFromOptional().has_value());
  EXPECT_EQ(tree.getNet(), (std::vector<std::string>{"n1"}));
  ASSERT_TRUE(tree.getNetOptional().has_value());
  EXPECT_FALSE(tree.getConnectionsOptional().value());
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
