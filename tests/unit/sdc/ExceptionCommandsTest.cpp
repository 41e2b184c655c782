// Timing exceptions as the commands set them: -from, -through and -to with
// their rise and fall forms, -through points in the order given, the
// options that exclude each other, a later exception over the same paths
// replacing the earlier one, and lists that name nothing.
#include <gtest/gtest.h>

#include "support/SdcTestUtil.h"

namespace {

using sta::sdc::ExceptionPoint;
using sta::sdc::PathException;

const char* const kDesign = R"(module exc_top (clk, in, out);
  input clk, in; output out; wire n1, n2;
  BUF u1 (.A(in), .Z(n1));
  DFF r1 (.D(n1), .CK(clk), .Q(n2));
  INV u2 (.A(n2), .Z(out));
endmodule)";

// "rise{port in, net n1}": the edges (none for both) and the objects.
std::string Describe(const ExceptionPoint& point) {
  std::string text = point.edges == cdm::RiseFallBoth::rise_   ? "rise"
                     : point.edges == cdm::RiseFallBoth::fall_ ? "fall"
                                                               : "";
  text += "{";
  for (size_t i = 0; i < point.objects.size(); ++i)
    text += (i ? ", " : "") + std::string(query::KindName(point.objects[i].ref.kind)) + " " +
            point.objects[i].name;
  return text + "}";
}

// "from {clock clk} through fall{pin r1/D} to {port out} hold only".
std::string Describe(const PathException& exception) {
  std::string text;
  if (exception.from) text += "from " + Describe(*exception.from) + " ";
  for (const ExceptionPoint& through : exception.throughs)
    text += "through " + Describe(through) + " ";
  if (exception.to) text += "to " + Describe(*exception.to) + " ";
  if (!exception.hold) text += "setup only ";
  if (!exception.setup) text += "hold only ";
  if (exception.start) text += "start ";
  if (exception.end) text += "end ";
  return text.substr(0, text.size() - 1);
}

class ExceptionCommandsTest : public sdctest::SdcShellTest {
 protected:
  void SetUp() override {
    SdcShellTest::SetUp();
    LoadOnce(kDesign, "exc_top");
    Store().Exceptions().clear();
    Eval("create_clock -name clk -period 10 clk");
  }
  std::vector<PathException>& Exceptions() { return Store().Exceptions(); }
};

TEST_F(ExceptionCommandsTest, ThroughsKeepTheOrderGivenAcrossTheirRiseAndFallForms) {
  Eval(
      "set_false_path -from clk -fall_through r1/D -through {u1/Z n1} -rise_through [get_pins "
      "u2/A] -rise_to out");
  ASSERT_EQ(Exceptions().size(), 1u);
  EXPECT_EQ(Describe(Exceptions()[0]),
            "from {clock clk} through fall{pin r1/D} through {pin u1/Z, net n1} through "
            "rise{pin u2/A} to rise{port out}");
  Eval("set_max_delay 2 -rise_from in -through u1 -to out -fall");
  ASSERT_EQ(Exceptions().size(), 2u);
  EXPECT_EQ(Describe(Exceptions()[1]), "from rise{port in} through {cell u1} to fall{port out}");
  EXPECT_FLOAT_EQ(Exceptions()[1].value, 2e-9f);
  // -rise without -to: the paths that end rising, wherever they end.
  Eval("set_min_delay 0.5 -through n2 -rise");
  EXPECT_EQ(Describe(Exceptions()[2]), "through {net n2} to rise{}");
  Eval("set_multicycle_path 2 -hold -start -fall_from r1 -to [get_clocks clk]");
  EXPECT_EQ(Describe(Exceptions()[3]), "from fall{cell r1} to {clock clk} hold only start");
  EXPECT_EQ(Exceptions()[3].value, 2.0f);
  EXPECT_EQ(Printed(), "");
}

TEST_F(ExceptionCommandsTest, OptionsThatExcludeEachOtherAreErrorsThatSetNothing) {
  const std::vector<std::pair<const char*, const char*>> cases = {
      {"set_false_path -from in -rise_from in -to out",
       "set_false_path: -from, -rise_from and -fall_from exclude each other"},
      {"set_false_path -to out -fall_to out",
       "set_false_path: -to, -rise_to and -fall_to exclude each other"},
      {"set_false_path -rise_to out -fall",
       "set_false_path: -rise/-fall and -rise_to/-fall_to exclude each other"},
      {"set_false_path -setup", "set_false_path: give at least one of -from, -through and -to"},
      {"set_max_delay 1 -rise", "set_max_delay: give at least one of -from, -through and -to"},
      {"set_multicycle_path 2 -start -end -to out",
       "set_multicycle_path: -start and -end exclude each other"},
      {"set_multicycle_path 1.5 -to out",
       "set_multicycle_path: the path multiplier must be a whole number of cycles, 0 or more"},
      {"group_path -to out", "group_path: give either -name or -default"},
      {"group_path -name g -default -to out", "group_path: give either -name or -default"},
  };
  for (const auto& [command, message] : cases)
    EXPECT_EQ(Error(command), "Error: " + std::string(message));
  EXPECT_TRUE(Exceptions().empty());
}

TEST_F(ExceptionCommandsTest, ALaterExceptionOverTheSamePathsAndChecksReplacesTheValue) {
  Eval("set_multicycle_path 2 -setup -to out");
  Eval("set_multicycle_path 3 -setup -to out");
  ASSERT_EQ(Exceptions().size(), 1u);
  EXPECT_EQ(Exceptions()[0].value, 3.0f);
  // Other checks, another end of the cycle count, other edges: other paths.
  Eval("set_multicycle_path 1 -hold -to out");
  Eval("set_multicycle_path 4 -setup -start -to out");
  Eval("set_multicycle_path 5 -setup -rise_to out");
  ASSERT_EQ(Exceptions().size(), 4u);
  EXPECT_EQ(Describe(Exceptions()[1]), "to {port out} hold only");
  EXPECT_EQ(Exceptions()[0].value, 3.0f);
  // The same objects named otherwise are the same paths.
  Eval("set_multicycle_path 6 -setup -to [get_ports out]");
  ASSERT_EQ(Exceptions().size(), 4u);
  EXPECT_EQ(Exceptions()[0].value, 6.0f);
  Eval("group_path -name g1 -from in");
  Eval("group_path -name g1 -from in -weight 2");
  Eval("group_path -name g2 -from in");
  ASSERT_EQ(Exceptions().size(), 6u);
  EXPECT_EQ(Exceptions()[4].weight, 2.0f);
  EXPECT_EQ(Exceptions()[5].group, "g2");
}

TEST_F(ExceptionCommandsTest, AListThatNamesNothingSetsNothing) {
  Eval("set_false_path -from nosuch -to out");
  Eval("set_false_path -from in -through {nosuch_a nosuch_b} -to out");
  Eval("set_max_delay 1 -to [get_ports -quiet nosuch]");
  EXPECT_TRUE(Exceptions().empty());
  EXPECT_EQ(Printed(),
            "Warning: set_false_path: no clock, port, pin or cell matches 'nosuch'. (SDC_001)\n"
            "Warning: set_false_path: no port, pin, net or cell matches 'nosuch_a'. (SDC_001)\n"
            "Warning: set_false_path: no port, pin, net or cell matches 'nosuch_b'. (SDC_001)\n");
  // One name that matches is enough; the others are warned about.
  Eval("set_false_path -from {in nosuch} -to out");
  ASSERT_EQ(Exceptions().size(), 1u);
  EXPECT_EQ(Describe(Exceptions()[0]), "from {port in} to {port out}");
}

}  // namespace
