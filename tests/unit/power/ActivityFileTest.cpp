// SAIF and VCD readers: the figures of the nets they name (by hand from the
// texts below), names the design lacks, leaf cells passed over, and the
// refusals of malformed text with file and line.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "power/SaifReader.h"
#include "power/VcdReader.h"
#include "support/SdcTestUtil.h"

namespace {

using power::ActivityFileResult;
using power::ActivitySetting;

class ActivityFileTest : public sdctest::SdcTest {
 protected:
  void SetUp() override {
    if (!Root()->GetLibertyLib("activity_small")) {
      std::string error;
      ASSERT_NE(liberty::ReadLibertyFile(Root(), sdctest::DataPath("activity_small.lib"), error),
                nullptr)
          << error;
    }
    // Read once: a module stays in the root; later tests link it again.
    if (cdm::Design* design = Root()->FindDesign("af_top")) {
      std::vector<std::string> warnings;
      std::string error;
      ASSERT_TRUE(cdm::LinkDesign(Root(), design, warnings, error)) << error;
      design_ = design;
      return;
    }
    design_ = Load(R"(module af_sub(i, o);
  input i; output o;
  A_INV u(.A(i), .Z(o));
endmodule
module af_top(clk, a, b, y);
  input clk, b; input [1:0] a; output y; wire n;
  af_sub s1(.i(b), .o(n));
  A_AND2 g(.A(a[0]), .B(n), .Z(y));
endmodule)",
                   "af_top");
    ASSERT_NE(design_, nullptr);
  }

  // The setting read for `net`, which must be there once.
  static ActivitySetting Find(const ActivityFileResult& result, const std::string& net) {
    std::vector<ActivitySetting> found;
    for (const auto& [name, setting] : result.nets)
      if (name == net) found.push_back(setting);
    EXPECT_EQ(found.size(), 1u) << net;
    return found.empty() ? ActivitySetting() : found[0];
  }
  static void ExpectFigures(const ActivityFileResult& result, const std::string& net, double rate,
                            double probability) {
    const ActivitySetting setting = Find(result, net);
    ASSERT_TRUE(setting.rate && setting.probability) << net;
    EXPECT_NEAR(setting.rate->value, rate, rate * 1e-9) << net;
    EXPECT_NEAR(*setting.probability, probability, 1e-9) << net;
  }

  // A VCD text read over the design, which must succeed.
  ActivityFileResult ReadVcdText(const std::string& text, const std::string& scope) {
    ActivityFileResult result;
    std::string error;
    EXPECT_TRUE(power::ReadVcd("t.vcd", text, *design_, scope, result, error)) << error;
    return result;
  }

  cdm::Design* design_ = nullptr;
};

const char* const kSaif = R"((SAIFILE
(SAIFVERSION "2.0")
(DIVIDER / )
(TIMESCALE 1 ns)
(DURATION 100)
(INSTANCE tb
  (NET (x (T0 100) (T1 0) (TC 0)))
  (INSTANCE dut
    (NET
      (a[0] (T0 60) (T1 40) (TX 0) (TC 2) (IG 0))
      (b (T0 20) (T1 60) (TX 20) (TC 10) (IG 0))
      (nosuch (T0 1) (T1 1) (TC 1))
    )
    // the net n, by its name inside s1
    (INSTANCE s1 (NET (o (T0 50) (T1 50) (TC 4))))
    /* a leaf cell: its pins */
    (INSTANCE g (NET (A (T0 1) (T1 1) (TC 1))) (INSTANCE inner (NET (q (T1 1)))))
  )
)
)
)";

TEST_F(ActivityFileTest, SaifGivesRatesOverTheDurationAndTimeAtOneOfTheKnownTime) {
  ActivityFileResult result;
  std::string error;
  ASSERT_TRUE(power::ReadSaif("t.saif", kSaif, *design_, "tb/dut", result, error)) << error;
  ExpectFigures(result, "a[0]", 2e7, 0.4);
  ExpectFigures(result, "b", 1e8, 0.75);  // 60 of the 80 ns it is known
  ExpectFigures(result, "s1/o", 4e7, 0.5);
  EXPECT_EQ(result.nets.size(), 3u);
  EXPECT_EQ(result.flat_nets, 3u);
  EXPECT_EQ(result.missing, 1u);
  EXPECT_EQ(result.first_missing, "nosuch");
  EXPECT_EQ(Find(result, "b").origin, power::ActivityOrigin::kSaif);

  // The divider may separate the path too; the outermost instance is the
  // default, where x, dut/... are not the design's.
  ActivityFileResult dotted, outer;
  const std::string dotted_text =
      std::string(kSaif).replace(std::string(kSaif).find("(DIVIDER / )"), 12, "(DIVIDER . )");
  ASSERT_TRUE(power::ReadSaif("t.saif", dotted_text, *design_, "tb.dut", dotted, error)) << error;
  EXPECT_EQ(dotted.nets.size(), 3u);
  ASSERT_TRUE(power::ReadSaif("t.saif", kSaif, *design_, "", outer, error)) << error;
  EXPECT_EQ(outer.flat_nets, 0u);
  EXPECT_EQ(outer.first_missing, "x");
}

TEST_F(ActivityFileTest, SaifRefusalsNameFileAndLine) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"hello", "t.saif:1: expected '(SAIFILE', found 'hello'"},
      {"(SAIFILE\n(DURATION 10)\n(INSTANCE tb (NET (b (T0 x)))))",
       "t.saif:3: expected a number of 0 or more, found 'x'"},
      {"(SAIFILE\n(DURATION -4))", "t.saif:2: expected a number of 0 or more, found '-4'"},
      {"(SAIFILE\n(TIMESCALE 1 parsec)\n)",
       "t.saif:2: expected a TIMESCALE such as '1 ps', found '1parsec'"},
      {"(SAIFILE\n(DURATION 10)\n(INSTANCE tb\n", "t.saif:4: expected '(' or ')', found the end"},
      {"(SAIFILE (DURATION 10) (INSTANCE tb)) x", "t.saif:1: text after the end of SAIFILE"},
      {"(SAIFILE (DURATION 10) (INSTANCE tb) (DATE \"x\" (", "t.saif:1: a group is not closed"},
      {"(SAIFILE (DURATION 10) (INSTANCE other))", "t.saif: no instance 'tb' in the file"},
      {"(SAIFILE (INSTANCE tb))", "t.saif: no DURATION above 0 in the file"},
  };
  for (const auto& [text, expected] : cases) {
    ActivityFileResult result;
    std::string error;
    EXPECT_FALSE(power::ReadSaif("t.saif", text, *design_, "tb", result, error)) << text;
    EXPECT_EQ(error.substr(0, expected.size()), expected) << text;
  }
  // Deep nesting is refused, not a crash.
  std::string deep = "(SAIFILE (DURATION 1)";
  for (int i = 0; i < 5000; ++i) deep += " (INSTANCE i";
  ActivityFileResult result;
  std::string error;
  EXPECT_FALSE(power::ReadSaif("t.saif", deep, *design_, "", result, error));
  EXPECT_NE(error.find("nested too deep"), std::string::npos) << error;
}

const char* const kVcd = R"($date today $end
$timescale 1ns $end
$scope module tb $end
$var wire 1 ! x $end
$scope module dut $end
$var wire 2 " a [1:0] $end
$var wire 1 # b $end
$var wire 1 $ nosuch $end
$var real 1 ' speed $end
$scope module s1 $end
$var wire 1 % o $end
$upscope $end
$scope module g $end
$var wire 1 & A $end
$upscope $end
$upscope $end
$upscope $end
$enddefinitions $end
#0
$dumpvars
b00 "
0#
x%
r1.5 '
$end
#10
1#
b01 "
1%
#30
0#
b1 "
#40
1#
b10 "
0%
#100
)";

TEST_F(ActivityFileTest, VcdCountsTransitionsBetweenZeroAndOneAndTimeAtOne) {
  const ActivityFileResult result = ReadVcdText(kVcd, "tb/dut");
  // b: 0, 1 at 10, 0 at 30, 1 at 40: three transitions in 100 ns, 80 ns at 1.
  ExpectFigures(result, "b", 3e7, 0.8);
  // a: 00, 01 at 10, "1" (01 again) at 30, 10 at 40.
  ExpectFigures(result, "a[0]", 2e7, 0.3);
  ExpectFigures(result, "a[1]", 1e7, 0.6);
  // n: x until 10 is no transition and no known time; 30 of 90 ns at 1.
  ExpectFigures(result, "s1/o", 1e7, 1.0 / 3.0);
  EXPECT_EQ(result.nets.size(), 4u);
  EXPECT_EQ(result.flat_nets, 4u);
  EXPECT_EQ(result.missing, 1u);
  EXPECT_EQ(result.first_missing, "nosuch");
  EXPECT_EQ(Find(result, "b").origin, power::ActivityOrigin::kVcd);
  EXPECT_EQ(ReadVcdText(kVcd, "tb.dut").nets.size(), 4u);
}

// A scope the design lacks: its variables' bits are all missing, counted
// without a look-up each (a million-bit variable in a scope that is not
// there took half a minute in a sanitizer build).
TEST_F(ActivityFileTest, VcdVariablesOfAScopeTheDesignLacksAreMissing) {
  const std::string text =
      "$timescale 1ns $end\n$scope module tb $end\n$scope module nosuchcell $end\n"
      "$var wire 1048576 ! w $end\n$upscope $end\n$var wire 1 # b $end\n$upscope $end\n"
      "$enddefinitions $end\n#0\nb1 !\n0#\n#10\nb0 !\n1#\n#20\n";
  const ActivityFileResult result = ReadVcdText(text, "tb");
  EXPECT_EQ(result.missing, 1048576u);
  EXPECT_EQ(result.first_missing, "nosuchcell/w[1048575]");
  EXPECT_EQ(result.nets.size(), 1u);
  ExpectFigures(result, "b", 5e7, 0.5);
}

// Scopes nested thousands deep are found a level at a time (each was once
// looked up by its whole path, in time that grew with the square of the
// depth): the variables inside are missing, and the scopes around them are
// found as before, a leaf cell's passed over.
TEST_F(ActivityFileTest, VcdScopesNestedThousandsDeep) {
  std::string text = "$timescale 1ns $end\n$scope module tb $end\n";
  std::string path;
  for (int i = 0; i < 3000; ++i) {
    text += "$scope module m" + std::to_string(i) + " $end\n";
    path += "m" + std::to_string(i) + "/";
  }
  text += "$var wire 1 ! deep $end\n";
  for (int i = 0; i < 3000; ++i) text += "$upscope $end\n";
  text +=
      "$scope module s1 $end\n$var wire 1 # o $end\n$scope module u $end\n"
      "$var wire 1 $ Z $end\n$upscope $end\n$upscope $end\n"
      "$upscope $end\n$enddefinitions $end\n#0\n0!\n0#\n0$\n#10\n1#\n#20\n";
  const ActivityFileResult result = ReadVcdText(text, "tb");
  EXPECT_EQ(result.missing, 1u);
  EXPECT_EQ(result.first_missing, path + "deep");
  ASSERT_EQ(result.nets.size(), 1u);  // s1/u is a library cell: its Z is a pin
  ExpectFigures(result, "s1/o", 5e7, 0.5);
}

// A vector is matched with the bits the design has, whatever its declared
// width and the direction of its range: the leftmost bit of a value is the
// range's left index. Bits the design lacks are missing, the leftmost named.
TEST_F(ActivityFileTest, VcdVectorsMeetTheDesignsBitsByIndex) {
  const std::string head = "$timescale 1ns $end\n$scope module tb $end\n";
  const std::string tail = "$upscope $end\n$enddefinitions $end\n";
  // No range: a[1048575:0], a million bits of which the design has two.
  ActivityFileResult result = ReadVcdText(
      head + "$var wire 1048576 ! a $end\n" + tail + "#0\nb1 !\n#10\nb10 !\n#20\nb0 !\n#40\n",
      "tb");
  ExpectFigures(result, "a[0]", 2.5e7, 0.25);
  ExpectFigures(result, "a[1]", 5e7, 0.25);
  EXPECT_EQ(result.missing, 1048574u);
  EXPECT_EQ(result.first_missing, "a[1048575]");
  // An ascending range: a[0] is on the left.
  result = ReadVcdText(
      head + "$var wire 2 \" a [0:1] $end\n" + tail + "#0\nb01 \"\n#10\nb10 \"\n#40\n", "tb");
  ExpectFigures(result, "a[0]", 2.5e7, 0.75);
  ExpectFigures(result, "a[1]", 2.5e7, 0.25);
  EXPECT_EQ(result.missing, 0u);
  // A range beyond the design's: a[3] and a[2] are missing.
  result = ReadVcdText(
      head + "$var wire 3 # a [3:1] $end\n" + tail + "#0\nb001 #\n#10\nb000 #\n#40\n", "tb");
  ASSERT_EQ(result.nets.size(), 1u);
  ExpectFigures(result, "a[1]", 2.5e7, 0.25);
  EXPECT_EQ(result.missing, 2u);
  EXPECT_EQ(result.first_missing, "a[3]");
}

TEST_F(ActivityFileTest, VcdRefusalsNameFileAndLine) {
  const std::string head =
      "$timescale 1ns $end\n$scope module tb $end\n$var wire 1 ! b $end\n$upscope $end\n"
      "$enddefinitions $end\n";  // five lines
  const std::vector<std::pair<std::string, std::string>> cases = {
      {head + "#0\n1?\n", "t.vcd:7: unknown identifier '?'"},
      {head + "#10\n#5\n", "t.vcd:7: time 5 goes back from 10"},
      {head + "#0\nb12 !\n", "t.vcd:7: expected a value of 0, 1, x and z, found '12'"},
      {head + "#0\nq!\n", "t.vcd:7: unexpected 'q!'"},
      {head + "#x\n", "t.vcd:6: expected a time after '#', found '#x'"},
      {head + "#0\nb !\n", "t.vcd:7: a vector change without a value"},
      {"$scope module tb $end\n$var wire 1 ! b $end\n", "t.vcd:3: the dump ends before"},
      {"$scope module tb $end\n$var wire 0 ! b $end\n", "t.vcd:2: expected a width from 1"},
      {"$scope module tb $end\n$var wire 2 ! b $end\n$var wire 84 ! c $end\n",
       "t.vcd:3: identifier '!' has width 2, and here 84"},
      {"$scope module tb $end\n$var wire 2 ! b [4294967297:4294967296] $end\n",
       "t.vcd:2: the range '[4294967297:4294967296]' has an index beyond 32 bits"},
      {"$timescale 1 parsec $end\n", "t.vcd:1: expected a timescale such as '1ps', found"},
      {"$upscope $end\n", "t.vcd:1: '$upscope' outside every scope"},
      {"$comment never closed\n", "t.vcd:1: '$comment' is not closed by '$end'"},
      {"hello\n", "t.vcd:1: unexpected 'hello' in the definitions"},
      {head + "#0\n", "t.vcd: no time passes in the dump"},
      {"$scope module other $end\n$enddefinitions $end\n#0\n#1\n",
       "t.vcd: no scope 'tb' in the dump"},
  };
  for (const auto& [text, expected] : cases) {
    ActivityFileResult result;
    std::string error;
    EXPECT_FALSE(power::ReadVcd("t.vcd", text, *design_, "tb", result, error)) << text;
    EXPECT_EQ(error.substr(0, expected.size()), expected) << text;
  }
}

}  // namespace
