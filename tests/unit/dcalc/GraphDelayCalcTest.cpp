// Delays and slews through small designs whose every figure is worked out
// by hand from tests/data/timer_small.lib (formulas at its top).
#include <gtest/gtest.h>

#include "dcalc/SlewScale.h"
#include "hostapi/cdm/LibertyLib.h"
#include "support/TimerTestUtil.h"

namespace {

using timertest::TimerTest;

class GraphDelayCalcTest : public TimerTest {
 protected:
  // Delay in ns of the cell arc into `to` from `from`.
  double ArcNs(const std::string& from, const std::string& to, int from_rf, int to_rf, int mm = 1) {
    const sta::TimingGraph* graph = timer_->Graph();
    const uint32_t f = Id(from);
    for (uint32_t e = graph->OutBegin(f); e < graph->OutEnd(f); ++e) {
      if (graph->Edges()[e].to == Id(to))
        return timer_->DelayCalc().ArcDelay(e, from_rf, to_rf, mm) * 1e9;
    }
    ADD_FAILURE() << "no edge " << from << " -> " << to;
    return -1.0;
  }
  bool HasArc(const std::string& from, const std::string& to, int from_rf, int to_rf) {
    const sta::TimingGraph* graph = timer_->Graph();
    const uint32_t f = Id(from);
    for (uint32_t e = graph->OutBegin(f); e < graph->OutEnd(f); ++e)
      if (graph->Edges()[e].to == Id(to)) return graph->Edges()[e].HasArc(from_rf, to_rf);
    return false;
  }
};

TEST_F(GraphDelayCalcTest, TablesGiveDelayAndSlewUnderTheLoadOfTheNet) {
  Load(R"(module top(in, out);
  input in; output out; wire n1;
  BUF u1(.A(in), .Z(n1));
  BUF u2(.A(n1), .Z(out));
  INV u3(.A(n1), .Z());
endmodule)");
  ASSERT_TRUE(timer_->Update(false));
  // u1 drives u2/A (0.01 pF) and u3/A (0.02 pF): load 0.03 pF, input slew
  // 0 (below the table: extrapolated).
  EXPECT_NEAR(timer_->DelayCalc().Load(Id("u1/Z"), 0, 1).Total() * 1e12, 0.03, 1e-9);
  EXPECT_NEAR(ArcNs("u1/A", "u1/Z", 0, 0), 0.1 + 0.0 + 10 * 0.03, 1e-6);
  EXPECT_NEAR(SlewNs("u1/Z", 0), 0.05 + 0.0 + 20 * 0.03, 1e-6);
  // The wire passes the slew on unchanged.
  EXPECT_NEAR(SlewNs("u2/A", 0), 0.65, 1e-6);
  // u2 drives the output port: no load; slew 0.65 is beyond the table.
  EXPECT_NEAR(ArcNs("u2/A", "u2/Z", 1, 1), 0.1 + 0.5 * 0.65, 1e-6);
  EXPECT_NEAR(SlewNs("out", 1), 0.05 + 0.2 * 0.65, 1e-6);
  // Min and max agree when nothing differs between them.
  EXPECT_NEAR(SlewNs("out", 1, 0), SlewNs("out", 1, 1), 1e-9);
}

TEST_F(GraphDelayCalcTest, SenseChoosesWhichInputEdgeFeedsWhichOutputEdge) {
  Load(R"(module top(a, b, z1, z2, z3);
  input a, b; output z1, z2, z3;
  INV i1(.A(a), .Z(z1));
  XOR2 x1(.A(a), .B(b), .Z(z2));
  AND2 g1(.A(a), .B(b), .Z(z3));
endmodule)");
  ASSERT_TRUE(timer_->Update(false));
  EXPECT_TRUE(HasArc("i1/A", "i1/Z", 1, 0));
  EXPECT_TRUE(HasArc("i1/A", "i1/Z", 0, 1));
  EXPECT_FALSE(HasArc("i1/A", "i1/Z", 0, 0));
  EXPECT_NEAR(ArcNs("i1/A", "i1/Z", 1, 0), 0.05, 1e-6);  // cell_rise
  EXPECT_NEAR(ArcNs("i1/A", "i1/Z", 0, 1), 0.04, 1e-6);  // cell_fall
  EXPECT_NEAR(SlewNs("z1", 0), 0.02, 1e-6);
  EXPECT_NEAR(SlewNs("z1", 1), 0.03, 1e-6);
  // No sense written: XOR is non-unate, AND positive unate, by function.
  for (int from = 0; from < 2; ++from)
    for (int to = 0; to < 2; ++to) EXPECT_TRUE(HasArc("x1/B", "x1/Z", from, to));
  EXPECT_TRUE(HasArc("g1/A", "g1/Z", 0, 0));
  EXPECT_TRUE(HasArc("g1/A", "g1/Z", 1, 1));
  EXPECT_FALSE(HasArc("g1/A", "g1/Z", 0, 1));
}

TEST_F(GraphDelayCalcTest, ChecksReadTheClockAndDataSlews) {
  Load(R"(module top(d, clk, q);
  input d, clk; output q; wire n1;
  BUF u1(.A(d), .Z(n1));
  DFF r1(.D(n1), .CK(clk), .Q(q));
endmodule)");
  ASSERT_TRUE(timer_->Update(false));
  // Data slew at r1/D: 0.05 + 20 * 0.01 = 0.25 ns; setup = 0.1 + 0.5 * 0.25.
  EXPECT_NEAR(SlewNs("r1/D", 0), 0.25, 1e-6);
  const sta::TimingGraph* graph = timer_->Graph();
  double setup = -1.0;
  double hold = -1.0;
  for (uint32_t e = graph->OutBegin(Id("r1/CK")); e < graph->OutEnd(Id("r1/CK")); ++e) {
    const sta::Edge& edge = graph->Edges()[e];
    if (edge.role == sta::EdgeRole::kSetup) setup = timer_->DelayCalc().ArcDelay(e, 0, 0, 1) * 1e9;
    if (edge.role == sta::EdgeRole::kHold) hold = timer_->DelayCalc().ArcDelay(e, 0, 1, 0) * 1e9;
  }
  EXPECT_NEAR(setup, 0.225, 1e-6);
  EXPECT_NEAR(hold, 0.02, 1e-6);
  EXPECT_NEAR(ArcNs("r1/CK", "r1/Q", 0, 1), 0.3, 1e-6);
  EXPECT_FALSE(HasArc("r1/CK", "r1/Q", 1, 1));
}

TEST_F(GraphDelayCalcTest, NothingIsRecomputedUntilTheNetlistChanges) {
  Load(R"(module top(in, out);
  input in; output out;
  BUF u1(.A(in), .Z(out));
endmodule)");
  ASSERT_TRUE(timer_->Update(false));
  EXPECT_EQ(timer_->UpdateCount(), 1u);
  EXPECT_TRUE(timer_->Update(false));
  EXPECT_EQ(timer_->UpdateCount(), 1u);
  EXPECT_TRUE(timer_->Update(true));
  EXPECT_EQ(timer_->UpdateCount(), 2u);
  root_.NoteChange();
  EXPECT_TRUE(timer_->Update(false));
  EXPECT_EQ(timer_->UpdateCount(), 3u);
}

TEST_F(GraphDelayCalcTest, SlewsConvertBetweenLibraryMeasures) {
  // Against 20-80% thresholds, a 10-90% library with tables derated by 0.5
  // reads a slew s as s * (80 / 60) / 0.5 and writes a value v back as
  // v / that factor.
  const char* text = R"(library (wide) {
  time_unit : "1ns" ; capacitive_load_unit (1, pf) ;
  slew_lower_threshold_pct_rise : 10 ; slew_upper_threshold_pct_rise : 90 ;
  slew_lower_threshold_pct_fall : 10 ; slew_upper_threshold_pct_fall : 90 ;
  slew_derate_from_library : 0.5 ;
})";
  std::string error;
  std::unique_ptr<cdm::LibertyLib> wide = liberty::ParseLiberty(&root_, text, "w.lib", error);
  ASSERT_NE(wide, nullptr) << error;
  const sta::SlewScale scale(wide.get(), root_.GetDefaultLiberty());
  EXPECT_NEAR(scale.ToLibrary(0.3f), 0.3 * (80.0 / 60.0) / 0.5, 1e-6);
  EXPECT_NEAR(scale.FromLibrary(0.8f), 0.8 / ((80.0 / 60.0) / 0.5), 1e-6);
  const sta::SlewScale own(wide.get(), wide.get());
  EXPECT_NEAR(own.FromLibrary(0.8f), 0.4, 1e-6);
  const sta::SlewScale same(root_.GetDefaultLiberty(), root_.GetDefaultLiberty());
  EXPECT_FLOAT_EQ(same.ToLibrary(0.3f), 0.3f);
}

}  // namespace
