// The argument parser against a command that declares one option of each
// kind, so that the cases do not depend on any report's option table.
#include <gtest/gtest.h>

#include <boost/any.hpp>

#include "cmdlib/ArgParser.h"
#include "hostapi/cmd/CommonCmd.h"

namespace {

class SampleCmd : public CommonCmd {
 public:
  SampleCmd() : CommonCmd("sample_cmd", "a command for the parser tests", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("design", "string positional", true, ValueType::kString, std::any());
    addOptions("objects", "list positional", true, ValueType::kStringList, std::any());
    addOptions("max_paths", "integer", false, ValueType::kInteger, std::any(5));
    addOptions("max_slack", "integer", false, ValueType::kInteger, std::any());
    addOptions("mode", "string with default", false, ValueType::kString, std::string("fast"));
    addOptions("through", "dash list", false, ValueType::kStringList, std::any());
    addOptions("verbose", "flag with default", false, ValueType::kFlag, std::any(false));
    addOptions("scale", "real", false, ValueType::kDouble, std::any());
    addOptions("widths", "integer list", false, ValueType::kIntegerList, std::any());
    addOptions("loads", "real list", false, ValueType::kDoubleList, std::any());
  }
  int exec() override { return 0; }
};

class ParserTest : public ::testing::Test {
 protected:
  static SampleCmd& Cmd() {
    static SampleCmd* command = new SampleCmd();  // lives in the command table
    return *command;
  }
  cmdlib::ParseOutcome Parse(std::vector<std::string> args) {
    return cmdlib::ParseArguments(Cmd().state(), args);
  }
  template <class T>
  T Value(const char* name) {
    boost::any value;
    EXPECT_TRUE(Cmd().getOptionValue(name, value)) << name;
    return boost::any_cast<T>(value);
  }
  bool HasValue(const char* name) {
    boost::any value;
    return Cmd().getOptionValue(name, value);
  }
  using List = std::vector<std::string>;
};

TEST_F(ParserTest, ListGivenAsOneTclListOrAsBareWords) {
  ASSERT_TRUE(Parse({"top", "n1 n2"}).ok);
  EXPECT_EQ(Value<List>("objects"), (List{"n1", "n2"}));
  ASSERT_TRUE(Parse({"top", "n1", "n2"}).ok);
  EXPECT_EQ(Value<List>("objects"), (List{"n1", "n2"}));
  ASSERT_TRUE(Parse({"top", "{a b} c", "d[3]"}).ok);
  EXPECT_EQ(Value<List>("objects"), (List{"a b", "c", "d[3]"}));
  EXPECT_EQ(Value<std::string>("design"), "top");
}

TEST_F(ParserTest, PositionalsFillInDeclarationOrderAroundOptions) {
  ASSERT_TRUE(Parse({"-max_p", "7", "top", "-verbose", "u1"}).ok);
  EXPECT_EQ(Value<std::string>("design"), "top");
  EXPECT_EQ(Value<List>("objects"), (List{"u1"}));
  EXPECT_EQ(Value<int>("max_paths"), 7);
  EXPECT_TRUE(Cmd().getOptionValue("verbose"));
}

TEST_F(ParserTest, DashListCollectsEveryUse) {
  ASSERT_TRUE(Parse({"-through", "a b", "-through", "c"}).ok);
  EXPECT_EQ(Value<List>("through"), (List{"a", "b", "c"}));
  EXPECT_EQ(Cmd().getOptionCount("through"), 2);
}

TEST_F(ParserTest, IntegersAndNegativeNumbers) {
  ASSERT_TRUE(Parse({"-max_slack", "-3"}).ok);
  EXPECT_EQ(Value<int>("max_slack"), -3);
  ASSERT_TRUE(Parse({"-max_slack", "0"}).ok);
  EXPECT_EQ(Value<int>("max_slack"), 0);
  for (const char* bad : {"1.5", "abc", "", "12x", "99999999999"}) {
    auto outcome = Parse({"-max_slack", bad});
    EXPECT_FALSE(outcome.ok) << bad;
    EXPECT_EQ(outcome.error,
              std::string("sample_cmd: option '-max_slack' expects an integer, got '") + bad + "'");
  }
}

TEST_F(ParserTest, RealsAndNumericLists) {
  ASSERT_TRUE(Parse({"-scale", "-1.5e-3", "-widths", "1 -2", "-widths", "3", "-loads", "0.5"}).ok);
  EXPECT_DOUBLE_EQ(Value<double>("scale"), -1.5e-3);
  EXPECT_EQ(Value<std::vector<int>>("widths"), (std::vector<int>{1, -2, 3}));
  EXPECT_EQ(Value<std::vector<double>>("loads"), (std::vector<double>{0.5}));
  EXPECT_EQ(Parse({"-widths", "1 x"}).error,
            "sample_cmd: option '-widths' expects a list of integers, got '1 x'");
  EXPECT_EQ(Parse({"-loads", "{0.5"}).error,
            "sample_cmd: option '-loads' expects a list of numbers, got '{0.5'");
  EXPECT_EQ(Parse({"-scale", "1e999"}).error,
            "sample_cmd: option '-scale' expects a number, got '1e999'");
}

TEST_F(ParserTest, DefaultsReadAsValuesButFlagsDoNot) {
  ASSERT_TRUE(Parse({}).ok);
  EXPECT_EQ(Value<int>("max_paths"), 5);
  EXPECT_EQ(Value<std::string>("mode"), "fast");
  EXPECT_FALSE(HasValue("max_slack"));
  EXPECT_FALSE(HasValue("objects"));
  EXPECT_FALSE(HasValue("verbose"));
  EXPECT_FALSE(Cmd().getOptionValue("verbose"));
  EXPECT_EQ(Cmd().getOptionCount("max_paths"), 0);  // a default is not a use
}

TEST_F(ParserTest, EachCallStartsAfresh) {
  ASSERT_TRUE(Parse({"top", "-verbose", "-mode", "slow"}).ok);
  ASSERT_TRUE(Parse({}).ok);
  EXPECT_FALSE(HasValue("design"));
  EXPECT_FALSE(Cmd().getOptionValue("verbose"));
  EXPECT_EQ(Value<std::string>("mode"), "fast");
}

TEST_F(ParserTest, RepeatedValueKeepsTheLastAndCountsBoth) {
  ASSERT_TRUE(Parse({"-mode", "a", "-mode", "b"}).ok);
  EXPECT_EQ(Value<std::string>("mode"), "b");
  EXPECT_EQ(Cmd().getOptionCount("mode"), 2);
}

TEST_F(ParserTest, ErrorsNameTheCommandAndTheOption) {
  EXPECT_EQ(Parse({"-zz"}).error, "sample_cmd: unknown option '-zz'");
  EXPECT_EQ(Parse({"-max"}).error,
            "sample_cmd: ambiguous option '-max' could be: -max_paths -max_slack");
  EXPECT_EQ(Parse({"-mode"}).error, "sample_cmd: option '-mode' needs a value");
  EXPECT_EQ(Parse({"top", "{a b"}).error,
            "sample_cmd: option 'objects' expects a list, got '{a b'");
  // A failed call leaves nothing behind for the accessors.
  EXPECT_FALSE(Parse({"top", "-verbose", "-zz"}).ok);
  EXPECT_FALSE(Cmd().getOptionValue("verbose"));
}

TEST_F(ParserTest, HelpIsReportedAndErrorsStillWin) {
  auto outcome = Parse({"-help", "top"});
  EXPECT_TRUE(outcome.ok);
  EXPECT_TRUE(outcome.help);
  EXPECT_TRUE(Parse({"-he"}).help);
  EXPECT_FALSE(Parse({"-help", "-zz"}).ok);
  EXPECT_FALSE(Parse({"-verbose"}).help);
}

TEST_F(ParserTest, LoneDashIsAValue) {
  ASSERT_TRUE(Parse({"-"}).ok);
  EXPECT_EQ(Value<std::string>("design"), "-");
}

TEST(SurplusArguments, RefusedWhenNoListTakesThem) {
  class TwoFlags : public CommonCmd {
   public:
    TwoFlags() : CommonCmd("two_flags", "", nullptr) {
      addOptions("name", "string positional", true, ValueType::kString, std::any());
    }
    int exec() override { return 0; }
  };
  static TwoFlags* command = new TwoFlags();
  std::vector<std::string> args{"a", "b"};
  auto outcome = cmdlib::ParseArguments(command->state(), args);
  EXPECT_FALSE(outcome.ok);
  EXPECT_EQ(outcome.error, "two_flags: unexpected argument 'b'");
}

// Host commands read the objects behind their values: each use of an option
// remembers which argument held its value.
TEST_F(ParserTest, EachUseRemembersWhereItsValueStood) {
  ASSERT_TRUE(Parse({"-through", "a", "top", "-through", "b c", "n1", "n2"}).ok);
  const ParsedOption& through = Cmd().state().parsed.at("through");
  EXPECT_EQ(through.arg_indices, (std::vector<size_t>{1, 4}));
  EXPECT_EQ(Cmd().state().parsed.at("design").arg_indices, (std::vector<size_t>{2}));
  EXPECT_EQ(Cmd().state().parsed.at("objects").arg_indices, (std::vector<size_t>{5, 6}));
}

}  // namespace
