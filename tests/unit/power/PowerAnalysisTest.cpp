// The power of instances over a hand-made library, with the activity of
// each net given: every figure below is worked out by hand from the
// library's notes (tests/data/power_small.lib).
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

#include "db/Netlist.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "power/PowerAnalysis.h"
#include "power/TruthProbability.h"
#include "support/TimerTestUtil.h"

namespace {

class PowerAnalysisTest : public timertest::TimerTest {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_NE(liberty::ReadLibertyFile(&root_, timertest::DataPath("power_small.lib"), error),
              nullptr)
        << error;
    root_.SetDefaultLiberty(root_.GetLibertyLib("power_small"));
  }

  // Loads the design below, times it and works its power out.
  void Run() {
    ASSERT_NE(Load("module pw_core (na, nb, n1, y);\n"
                   "  input na, nb; output n1, y;\n"
                   "  INV u1 (.A(na), .Y(n1));\n"
                   "  AND2 u2 (.A(na), .B(nb), .Y(y));\n"
                   "endmodule\n"
                   "module pw (a, b, clk, c1, c2, c3, y, q, y2, y3, y4);\n"
                   "  input a, b, clk, c1, c2, c3; output y, q, y2, y3, y4;\n"
                   "  wire na, nb, n1;\n"
                   "  BUF b0 (.A(a), .Y(na));\n"
                   "  BUFV b1 (.A(b), .Y(nb));\n"
                   "  pw_core c (.na(na), .nb(nb), .n1(n1), .y(y));\n"
                   "  DFF f1 (.D(n1), .CK(clk), .Q(q));\n"
                   "  MEM m1 ();\n"
                   "  PADC p1 (.A(n1));\n"
                   "  O21AI u3 (.A1(c1), .A2(c2), .B1(c3), .Y(y2));\n"
                   "  XOR2 u4 (.A(c1), .B(c3), .Y(y3));\n"
                   "  NAND2W u5 (.A(c2), .B(c3), .Y(y4));\n"
                   "endmodule\n"),
              nullptr);
    ASSERT_TRUE(timer_->Update(false));
    analysis_ = std::make_unique<power::PowerAnalysis>(*timer_, [this](const cdm::Pin* pin) {
      const cdm::Net* net = pin->GetNet();
      auto found = net ? activity_.find(net->Name()) : activity_.end();
      return found == activity_.end() ? power::PinActivity() : found->second;
    });
    ASSERT_TRUE(analysis_->Run(true));
  }

  cdm::PowerResult Of(const std::string& path) {
    const size_t slash = path.find('/');
    cdm::Cell* cell = root_.GetCurrentDesign()->FindCell(path.substr(0, slash));
    if (cell && slash != std::string::npos)
      cell = cell->GetChildNetlist()->FindCell(path.substr(slash + 1));
    EXPECT_NE(cell, nullptr) << path;
    return cell ? analysis_->InstancePower(cell) : cdm::PowerResult();
  }

  // Rates per second, probabilities of 1.
  std::map<std::string, power::PinActivity> activity_ = {
      {"na", {2e8, 0.5, cdm::PwrActivityOrigin::kUser}},
      {"nb", {1e8, 0.75, cdm::PwrActivityOrigin::kUser}},
      {"n1", {1e8, 0.25, cdm::PwrActivityOrigin::kPropagated}},
      {"y", {1e8, 0.4, cdm::PwrActivityOrigin::kPropagated}},
      {"clk", {2e8, 0.5, cdm::PwrActivityOrigin::kClock}},
      {"q", {5e7, 0.5, cdm::PwrActivityOrigin::kPropagated}},
      {"c1", {4e7, 0.5, cdm::PwrActivityOrigin::kUser}},
      {"c2", {2e7, 0.25, cdm::PwrActivityOrigin::kUser}},
      {"c3", {1e7, 0.2, cdm::PwrActivityOrigin::kUser}},
      {"y2", {3e7, 0.6, cdm::PwrActivityOrigin::kPropagated}},
      {"y4", {2e7, 0.9, cdm::PwrActivityOrigin::kPropagated}},
  };
  std::unique_ptr<power::PowerAnalysis> analysis_;
};

void ExpectPower(const cdm::PowerResult& power, double internal, double switching, double leakage) {
  EXPECT_NEAR(power.internal, internal, internal * 1e-5 + 1e-15);
  EXPECT_NEAR(power.switching, switching, switching * 1e-5 + 1e-15);
  EXPECT_NEAR(power.leakage, leakage, leakage * 1e-5 + 1e-18);
}

TEST_F(PowerAnalysisTest, InternalPowerAtEachTablesOwnEdge) {
  Run();
  // u1: load 0.015 pF (f1/D 0.01, p1/A 0.005) on both edges. Each table is
  // read at the input's slew of its own edge: rise table at the rising
  // slew 0.1 and 0.015 is 1.5, fall table at the falling slew 0.3 is 1.25.
  // Both are charged at the arc's rate, the input's own 2e8 ("!A" passes
  // every transition of A): 2e8 x 2.75 pJ = 5.5e-4 W.
  // Switching: 0.5 x 0.015 pF x 1 V^2 x 1e8 = 7.5e-7 W; leakage 3 nW.
  ExpectPower(Of("c/u1"), 5.5e-4, 7.5e-7, 3e-9);
}

TEST_F(PowerAnalysisTest, ArcsChargedAtWhatTheirInputsImply) {
  Run();
  // u2 = A&B, each an operand of the AND: A passes when B is 1, 2e8 x
  // 0.75; B when A is 1, 1e8 x 0.5. A's tables sum to 2 + 2, B's one
  // `power` table counts for both edges, 4 + 4: 1.5e8 x 4 pJ + 5e7 x 8 pJ
  // = 1e-3 W. No load on y.
  // Leakage: A&B 0.375 x 10 + !A&!B 0.125 x 2 + what is left (0.5) x 4 = 6 nW.
  ExpectPower(Of("c/u2"), 1e-3, 0.0, 6e-9);
  // u3 = (!A1&!A2) | (!B1): B1 is an operand of the OR, passing while
  // !A1&!A2 is 0: 1e7 x (1 - 0.5 x 0.75) x 10 pJ = 6.25e-5. A1 and A2 lie
  // deeper: each at half the output's 3e7, 1.5e7 x 2 pJ + 1.5e7 x 6 pJ =
  // 1.2e-4. A1's own group, not a clock pin, at half its rate: 2e7 x 4 pJ
  // = 8e-5. Leakage 1 nW.
  ExpectPower(Of("u3"), 6.25e-5 + 1.2e-4 + 8e-5, 0.0, 1e-9);
  // u4 = A^B, charged as an OR: A while B is 0, 4e7 x 0.8 x 2 pJ; B while
  // A is 0, 1e7 x 0.5 x 4 pJ. B's own group has a `when`: its whole rate
  // while A is 1, 1e7 x 0.5 x 2 pJ.
  ExpectPower(Of("u4"), 6.4e-5 + 2e-5 + 1e-5, 0.0, 1e-9);
  // u5 = !(A&B): B is an operand of the AND under the inversion, passing
  // while A is 1: 1e7 x 0.25 x 6 pJ. A's one group has a `when`: the
  // output's whole rate while B is 1, 2e7 x 0.2 x 2 pJ.
  ExpectPower(Of("u5"), 1.5e-5 + 8e-6, 0.0, 1e-9);
}

TEST_F(PowerAnalysisTest, WhenConditionsOfAClockPinAndARegisterOutput) {
  Run();
  // f1/CK, a clock pin, at its whole rate: 2e8 x (P(D) 0.25 x (3 + 1) +
  // 0.75 x (1 + 1)) pJ = 5e-4; f1/Q, its function not reading CK, at its
  // whole rate: 5e7 x (4 + 2) pJ = 3e-4. No leakage of its own: the
  // library's default, 7 nW.
  ExpectPower(Of("f1"), 8e-4, 0.0, 7e-9);
}

TEST_F(PowerAnalysisTest, SwitchingAtTheDriversSupply) {
  Run();
  // The load is the larger of the rising and the falling one. b0 drives na
  // (u1/A 0.005 + u2/A 0.006 rising, 0.01 falling: 0.015) at the nominal
  // 1 V, 2e8 a second.
  ExpectPower(Of("b0"), 0.0, 0.5 * 0.015e-12 * 1.0 * 2e8, 1e-9);
  // b1's output is powered by VDDH, 2 V: nb (u2/B 0.01 rising, 0.006
  // falling) at 1e8.
  ExpectPower(Of("b1"), 0.0, 0.5 * 0.01e-12 * 4.0 * 1e8, 2e-9);
  cdm::SwitchPowerRecord record;
  ASSERT_TRUE(analysis_->NetRecord(root_.GetCurrentDesign()->FindNet("nb"), record));
  EXPECT_FLOAT_EQ(record.vdd, 2.0f);
  EXPECT_FLOAT_EQ(record.net_load, 0.01e-12f);
  EXPECT_FLOAT_EQ(record.toggle_rate, 0.1f);  // per nanosecond
  EXPECT_FLOAT_EQ(record.static_probability, 0.75f);
  EXPECT_FLOAT_EQ(record.switching_power, 2e-6f);
  EXPECT_EQ(record.origin, cdm::PwrActivityOrigin::kUser);
  // The same flat net by its name inside c.
  cdm::Cell* core = root_.GetCurrentDesign()->FindCell("c");
  ASSERT_TRUE(analysis_->NetRecord(core->GetChildNetlist()->FindNet("n1"), record));
  EXPECT_FLOAT_EQ(record.net_load, 0.015e-12f);
}

TEST_F(PowerAnalysisTest, GroupsAndHierarchySums) {
  Run();
  ExpectPower(Of("c"), 5.5e-4 + 1e-3, 7.5e-7, 9e-9);
  using PA = power::PowerAnalysis;
  ExpectPower(analysis_->GroupPower(PA::kSequential), 8e-4, 0.0, 7e-9);
  ExpectPower(analysis_->GroupPower(PA::kCombinational), 1.55e-3 + 2.625e-4 + 9.4e-5 + 2.3e-5,
              1.5e-6 + 2e-6 + 7.5e-7, 15e-9);
  ExpectPower(analysis_->GroupPower(PA::kMacro), 0.0, 0.0, 100e-9);
  ExpectPower(analysis_->GroupPower(PA::kPad), 0.0, 0.0, 50e-9);
  ExpectPower(analysis_->Total(), 2.7295e-3, 4.25e-6, 172e-9);
}

TEST(TruthProbability, One) {
  // a&b|c over inputs a (bit 0), b (bit 1), c (bit 2).
  std::vector<bool> table(8);
  for (size_t row = 0; row < 8; ++row) table[row] = ((row & 3) == 3) || (row & 4);
  const std::vector<double> one = {0.5, 0.25, 0.1};
  // 1 - (1 - 0.125) x 0.9
  EXPECT_NEAR(power::ProbabilityOfOne(table, one), 0.2125, 1e-12);
}

}  // namespace
