// Arrivals and checks through small designs over tests/data/timer_small.lib,
// every figure worked out by hand (ns, pF): BUF delay 0.1 + 0.5 * slew +
// 10 * load, transition 0.05 + 0.2 * slew + 20 * load; INV rise 0.05, fall
// 0.04; DFF clock to Q 0.3 (slew 0.04), setup 0.15 + 0.5 * (data slew -
// 0.1), hold 0.02. The peer timer gives the same slacks on these designs.
#include <gtest/gtest.h>

#include <cmath>

#include "search/PathSelection.h"
#include "support/TimingTestUtil.h"

namespace {

using timingtest::TimingTest;

// in -> u1 -> r1 -> u2 (INV) -> r2 -> u3 -> out, r1 -> r3 (on clk2),
// div (a divide-by-2 register whose output clocks r4).
const char* const kTwoClocks = R"(module %s(in1, clk, clk2, out1, out2);
  input in1, clk, clk2; output out1, out2;
  wire n1, n2, q1, q2, n3, cb, q4, q5;
  BUF u1(.A(in1), .Z(n1));
  DFF r1(.D(n1), .CK(clk), .Q(q1));
  INV u2(.A(q1), .Z(n2));
  DFF r2(.D(n2), .CK(clk), .Q(q2));
  BUF u3(.A(q2), .Z(out1));
  DFF r3(.D(q1), .CK(clk2), .Q(n3));
  BUF u4(.A(n3), .Z(out2));
  DFF div(.D(q4), .CK(clk), .Q(cb));
  INV u5(.A(cb), .Z(q4));
  DFF r4(.D(q2), .CK(cb), .Q(q5));
endmodule)";

std::string Named(const char* text, const std::string& top) {
  std::string netlist = text;
  netlist.replace(netlist.find("%s"), 2, top);
  return netlist;
}

class SearchTest : public TimingTest {
 protected:
  void LoadTwoClocks(const std::string& top) {
    Load(Named(kTwoClocks, top), top);
    Run("create_clock -name clk -period 10 [get_ports clk]\n"
        "set_input_delay 1 -clock clk [get_ports in1]\n"
        "set_output_delay 2 -clock clk [get_ports out1]\n");
  }
};

TEST_F(SearchTest, RegisterAndPortChecksWithLatencyAndUncertainty) {
  LoadTwoClocks("st_basic");
  Run("set_clock_latency 0.5 [get_clocks clk]\n"
      "set_clock_latency -source 0.3 [get_clocks clk]\n"
      "set_clock_uncertainty 0.1 [get_clocks clk]\n");
  // in1: edge 0 + latency 0.8 + delay 1; u1 into r1/D (0.01): 0.2 more.
  EXPECT_NEAR(ArrivalNs("r1/D", 0), 2.0, 1e-5);
  // Data slew 0.25 at r1/D: setup 0.225; required 10 + 0.8 - 0.1 - 0.225.
  const std::vector<sta::PathEnd> r1 = EndsAt("r1/D", true);
  ASSERT_FALSE(r1.empty());
  EXPECT_NEAR(r1.front().required * 1e9, 10.475, 1e-5);
  EXPECT_NEAR(SlackNs("r1/D"), 8.475, 1e-5);
  EXPECT_EQ(GroupOf(r1.front()), "clk");
  // r2/D hold: 0.8 + 0.3 + the INV's faster fall 0.04 against 0.8 + 0.1 + 0.02.
  EXPECT_NEAR(SlackNs("r2/D", false), 1.14 - 0.92, 1e-5);
  // out1: 0.8 + 0.3 + u3 (slew 0.04, no load) 0.12 against 10 + 0.8 - 0.1 - 2.
  EXPECT_NEAR(SlackNs("out1"), 8.7 - 1.22, 1e-5);
  // Hold at the output: 1.22 against -2 + 0.8 + 0.1.
  EXPECT_NEAR(SlackNs("out1", false), 1.22 + 1.1, 1e-5);
}

TEST_F(SearchTest, TwoClocksRelateOverTheirCommonPeriodAndAGeneratedClockDivides) {
  LoadTwoClocks("st_clocks");
  Run("create_clock -name clk2 -period 4 -waveform {1 3} [get_ports clk2]\n"
      "create_generated_clock -name gclk -source [get_ports clk] -divide_by 2 [get_pins div/Q]\n");
  // clk (10) to clk2 (4, rising at 1): the closest capture after a launch
  // is 1 after the launch at 0; the latest before a launch, 1 before the
  // launch at 10. Setup 0.12 at a 0.04 data slew.
  EXPECT_NEAR(SlackNs("r3/D"), 1.0 - 0.12 - 0.3, 1e-5);
  const std::vector<sta::PathEnd> hold = EndsAt("r3/D", false);
  ASSERT_FALSE(hold.empty());
  EXPECT_NEAR(hold.front().launch_shift * 1e9, 10.0, 1e-5);
  EXPECT_NEAR(hold.front().slack * 1e9, 0.3 - (-1.0 + 0.02), 1e-5);
  // gclk rises at 0, 20, ...: a clk launch at 10 is captured at 20.
  EXPECT_NEAR(SlackNs("r4/D"), 10.0 - 0.12 - 0.3, 1e-5);
  // Nothing but the generated clock arrives at its source: div/D sees gclk
  // (falling at 10) through u5 as data, captured by clk at 20, not the
  // register's own launch.
  EXPECT_NEAR(SlackNs("div/D"), 20.0 - 0.11 - 10.05, 1e-5);
}

TEST_F(SearchTest, ExceptionsMoveOrRemoveChecks) {
  LoadTwoClocks("st_exceptions");
  Run("create_clock -name clk2 -period 4 -waveform {1 3} [get_ports clk2]\n"
      "set_output_delay 0.5 -clock clk2 [get_ports out2]\n");
  const double r2_hold = SlackNs("r2/D", false);
  EXPECT_NEAR(r2_hold, 0.34 - 0.02, 1e-5);
  // A setup multicycle of 2 moves setup a period on and hold with it.
  Run("set_multicycle_path 2 -setup -from [get_pins r1/CK] -to [get_pins r2/D]");
  EXPECT_NEAR(SlackNs("r2/D"), 20.0 - 0.11 - 0.35, 1e-5);
  EXPECT_NEAR(SlackNs("r2/D", false), 0.34 - 10.02, 1e-5);
  // A hold multicycle of 1 brings hold back to the launch edge.
  Run("set_multicycle_path 1 -hold -from [get_pins r1/CK] -to [get_pins r2/D]");
  EXPECT_NEAR(SlackNs("r2/D", false), r2_hold, 1e-5);
  // max_delay replaces the clock relation: 5 + latency 0 - setup 0.225.
  Run("set_max_delay 5 -from [get_ports in1] -to [get_pins r1/D]");
  EXPECT_NEAR(SlackNs("r1/D"), 5.0 - 0.225 - 1.2, 1e-5);
  // False paths: to a port, through a pin, and between clock groups.
  EXPECT_FALSE(std::isnan(SlackNs("out2")));
  EXPECT_FALSE(std::isnan(SlackNs("out1")));
  EXPECT_FALSE(std::isnan(SlackNs("r3/D")));
  Run("set_false_path -to [get_ports out2]\n"
      "set_false_path -through [get_pins u3/Z]\n"
      "set_clock_groups -asynchronous -group {clk} -group {clk2}\n");
  EXPECT_TRUE(std::isnan(SlackNs("out2")));
  EXPECT_TRUE(std::isnan(SlackNs("out1")));
  EXPECT_TRUE(std::isnan(SlackNs("r3/D")));
  EXPECT_FALSE(std::isnan(SlackNs("r2/D")));
  // group_path names the group of its paths.
  Run("group_path -name inputs -from [get_ports in1]");
  ASSERT_FALSE(EndsAt("r1/D", true).empty());
  EXPECT_EQ(GroupOf(EndsAt("r1/D", true).front()), "inputs");
  EXPECT_EQ(GroupOf(EndsAt("r2/D", true).front()), "clk");
}

TEST_F(SearchTest, APropagatedClockTakesTheDelaysOfItsTreeAndConstantsStopPaths) {
  Load(R"(module st_propagated(in1, clk, sel, out1);
  input in1, clk, sel; output out1;
  wire n1, q1, n2, q2, c1, c2, c3, m;
  BUF cb1(.A(clk), .Z(c1));
  BUF cb2(.A(c1), .Z(c2));
  INV ci(.A(c1), .Z(c3));
  BUF u1(.A(in1), .Z(n1));
  DFF r1(.D(n1), .CK(c2), .Q(q1));
  AND2 g(.A(q1), .B(sel), .Z(n2));
  DFF r2(.D(n2), .CK(c3), .Q(q2));
  XOR2 x(.A(q2), .B(sel), .Z(m));
  BUF u3(.A(m), .Z(out1));
endmodule)",
       "st_propagated");
  Run("create_clock -name clk -period 10 [get_ports clk]\n"
      "set_propagated_clock [get_clocks clk]\n"
      "set_clock_latency -source 0.4 [get_clocks clk]\n"
      "set_input_delay 0.5 -clock clk [get_ports sel]\n");
  // cb1 drives 0.03 pF from slew 0: 0.4 (slew 0.65); cb2 drives r1/CK's
  // 0.02 from 0.65: 0.625. With the source latency r1/CK rises at 1.425.
  const std::vector<sta::PathEnd> setup = EndsAt("r2/D", true);
  ASSERT_FALSE(setup.empty());
  // r2 is clocked through the inverter: rising at the clock's fall (5) +
  // 0.4 + 0.4 (cb1 falling) + 0.05 (INV rise) = 5.85.
  EXPECT_NEAR(setup.front().clock_latency * 1e9, 0.85, 1e-5);
  EXPECT_NEAR(setup.front().capture_time * 1e9, 5.0, 1e-5);
  // Data: 1.425 + 0.3 + AND 0.1; setup at slew 0.01: 0.105.
  EXPECT_NEAR(SlackNs("r2/D"), 5.85 - 0.105 - 1.825, 1e-5);
  // sel at 0 holds g/Z at 0: r2/D has no checks any more.
  Run("set_case_analysis 0 [get_ports sel]");
  EXPECT_TRUE(std::isnan(SlackNs("r2/D")));
  EXPECT_TRUE(std::isnan(ArrivalNs("g/Z", 0)));
}

TEST_F(SearchTest, ALoopIsTimedAroundOnceFromItsCut) {
  Load(R"(module st_loop(in, clk, out);
  input in, clk; output out; wire a, b, c, q;
  DFF r1(.D(in), .CK(clk), .Q(q));
  AND2 g1(.A(q), .B(c), .Z(a));
  INV g2(.A(a), .Z(b));
  INV g3(.A(b), .Z(c));
  BUF g4(.A(b), .Z(out));
endmodule)",
       "st_loop");
  Run("create_clock -name clk -period 10 [get_ports clk]\n"
      "set_output_delay 1 -clock clk [get_ports out]\n");
  // g1/B -> g1/Z is cut: q (0.3) -> g1 0.1 -> g2 (rise 0.05 / fall 0.04)
  // -> g4: slew 0.02 (rising) or 0.03 (falling) behind the INV, BUF delay
  // 0.1 + 0.5 * slew.
  EXPECT_NEAR(ArrivalNs("out", 1), 0.3 + 0.1 + 0.04 + 0.115, 1e-5);
  EXPECT_NEAR(ArrivalNs("out", 0), 0.3 + 0.1 + 0.05 + 0.11, 1e-5);
  EXPECT_NEAR(SlackNs("out"), 9.0 - 0.56, 1e-5);
}

TEST_F(SearchTest, AConstraintChangeRetimesAndARelinkRebuilds) {
  cdm::Design* design = Load(Named(kTwoClocks, "st_update"), "st_update");
  Run("create_clock -name clk -period 10 [get_ports clk]");
  sta::Timer& timer = Timed();
  EXPECT_TRUE(std::isnan(SlackNs("out1")));
  Run("set_output_delay 2 -clock clk [get_ports out1]");
  EXPECT_NEAR(SlackNs("out1"), 8.0 - 0.42, 1e-5);
  EXPECT_EQ(timer.GraphBuildCount(), 1u);
  std::vector<std::string> warnings;
  std::string error;
  ASSERT_TRUE(cdm::LinkDesign(Root(), design, warnings, error)) << error;
  EXPECT_NEAR(SlackNs("out1"), 8.0 - 0.42, 1e-5);
  EXPECT_EQ(timer.GraphBuildCount(), 2u);
}

// in -> 60 diamonds (a BUF pair rejoined by an AND2) -> out: 2^60 paths, all
// of the same delay. The worst one is found by walking straight down; a
// search led astray by keys a rounding apart never finishes.
TEST_F(SearchTest, TheWorstPathThroughManyTiedReconvergencesIsFoundDirectly) {
  const int kDiamonds = 60;
  std::string netlist = "module st_ties(in, clk, out);\n  input in, clk; output out;\n";
  for (int i = 0; i < kDiamonds; ++i)
    netlist += "  wire a" + std::to_string(i) + ", l" + std::to_string(i) + ", r" +
               std::to_string(i) + ";\n";
  netlist += "  BUF head(.A(in), .Z(a0));\n";
  for (int i = 0; i < kDiamonds; ++i) {
    const std::string n = std::to_string(i);
    const std::string next = i + 1 < kDiamonds ? "a" + std::to_string(i + 1) : "out";
    netlist += "  BUF bl" + n + "(.A(a" + n + "), .Z(l" + n + "));\n";
    netlist += "  BUF br" + n + "(.A(a" + n + "), .Z(r" + n + "));\n";
    netlist += "  AND2 j" + n + "(.A(l" + n + "), .B(r" + n + "), .Z(" + next + "));\n";
  }
  netlist += "endmodule";
  Load(netlist, "st_ties");
  Run("create_clock -name clk -period 100 [get_ports clk]\n"
      "set_input_delay 1 -clock clk [get_ports in]\n"
      "set_output_delay 1 -clock clk [get_ports out]\n");
  sta::PathSelection selection;
  const std::vector<sta::TimingPath> paths = sta::SelectPaths(Timed().Search(), selection);
  ASSERT_EQ(paths.size(), 1u);
  // The input, the head BUF's two pins, a BUF's and the AND2's two pins a
  // diamond, the output.
  EXPECT_EQ(paths[0].stages.size(), static_cast<size_t>(1 + 2 + 4 * kDiamonds + 1));
  // Re-summed from its start, the path arrives exactly where the search said.
  EXPECT_EQ(paths[0].slack, EndsAt("out", true).front().slack);
}

}  // namespace
