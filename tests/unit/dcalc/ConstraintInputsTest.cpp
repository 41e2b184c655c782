// Delay calculation under constraints: external loads, input transitions,
// driving cells and drives, ideal clock transitions, constants and disabled
// arcs; and what an update recomputes after a change. Figures by hand from
// tests/data/timer_small.lib: BUF delay = 0.1 + 0.5 * slew + 10 * load,
// transition = 0.05 + 0.2 * slew + 20 * load (ns, pF).
#include <gtest/gtest.h>

#include <memory>

#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibertyLib.h"
#include "query/ObjectRef.h"
#include "search/Timer.h"
#include "support/SdcTestUtil.h"

namespace {

using cdm::MinMax;
using cdm::RiseFall;
using cdm::RiseFallBoth;
using sta::sdc::MinMaxAll;

class ConstraintInputsTest : public sdctest::SdcTest {
 protected:
  void Time() {
    timer_ = std::make_unique<sta::Timer>(Root());
    ASSERT_TRUE(timer_->Update(false));
  }
  uint32_t Id(const std::string& name) { return Pin(name)->GetVertexId(); }
  double SlewNs(const std::string& name, int rf = 0, int mm = 1) {
    return timer_->Graph()->Slew(Id(name), rf, mm) * 1e9;
  }
  double ArcNs(const std::string& from, const std::string& to, int from_rf, int to_rf) {
    const sta::TimingGraph* graph = timer_->Graph();
    for (uint32_t e = graph->OutBegin(Id(from)); e < graph->OutEnd(Id(from)); ++e)
      if (graph->Edges()[e].to == Id(to))
        return timer_->DelayCalc().ArcDelay(e, from_rf, to_rf, 1) * 1e9;
    ADD_FAILURE() << "no edge " << from << " -> " << to;
    return -1.0;
  }
  bool Disabled(const std::string& from, const std::string& to) {
    const sta::TimingGraph* graph = timer_->Graph();
    for (uint32_t e = graph->OutBegin(Id(from)); e < graph->OutEnd(Id(from)); ++e)
      if (graph->Edges()[e].to == Id(to)) return timer_->Constants().EdgeDisabled(e);
    ADD_FAILURE() << "no edge " << from << " -> " << to;
    return false;
  }
  std::unique_ptr<sta::Timer> timer_;
};

TEST_F(ConstraintInputsTest, ExternalLoadAndInputTransitionEnterTheTables) {
  Load(R"(module ci_load(in, out);
  input in; output out; wire n1;
  BUF u1(.A(in), .Z(n1));
  BUF u2(.A(n1), .Z(out));
endmodule)",
       "ci_load");
  Store().SetPortLoad(Port("out"), RiseFallBoth::rise_fall_, MinMaxAll::kAll, false, 0.02e-12f);
  Time();
  // u1 drives u2/A (0.01 pF) from a slew of 0: slew 0.05 + 20 * 0.01.
  EXPECT_NEAR(SlewNs("u1/Z"), 0.25, 1e-6);
  // u2 drives the port's 0.02 pF: 0.1 + 0.5 * 0.25 + 10 * 0.02.
  EXPECT_NEAR(ArcNs("u2/A", "u2/Z", 0, 0), 0.425, 1e-6);
  EXPECT_NEAR(SlewNs("out"), 0.05 + 0.05 + 0.4, 1e-6);
  Store().SetInputSlew(Port("in"), RiseFallBoth::rise_fall_, MinMaxAll::kAll, 0.2e-9f);
  ASSERT_TRUE(timer_->Update(false));
  EXPECT_NEAR(SlewNs("in", 1), 0.2, 1e-6);
  EXPECT_NEAR(ArcNs("u1/A", "u1/Z", 1, 1), 0.1 + 0.1 + 0.1, 1e-6);
  EXPECT_NEAR(SlewNs("u1/Z", 1), 0.05 + 0.04 + 0.2, 1e-6);
}

TEST_F(ConstraintInputsTest, ADrivingCellGivesTheInputItsSlewAndItsDelay) {
  Load(R"(module ci_drive(in, in2, out, out2);
  input in, in2; output out, out2;
  BUF u1(.A(in), .Z(out));
  BUF u2(.A(in2), .Z(out2));
endmodule)",
       "ci_drive");
  sta::sdc::DrivingCellSpec spec;
  spec.lib_cell = Root()->GetLibertyLib("timer_small")->GetLibCell("BUF");
  spec.input_transition[0] = 0.1e-9f;
  spec.input_transition[1] = 0.1e-9f;
  Store().SetDrivingCell(Port("in"), RiseFallBoth::rise_fall_, MinMaxAll::kAll, spec);
  // set_drive 10 kohm into u2/A's 0.01 pF: R * C = 0.1 ns.
  Store().SetDriveResistance(Port("in2"), RiseFallBoth::rise_fall_, MinMaxAll::kAll, 1e4f);
  Time();
  // The BUF drives u1/A (0.01 pF) from 0.1 ns.
  EXPECT_NEAR(SlewNs("in"), 0.05 + 0.02 + 0.2, 1e-6);
  EXPECT_NEAR(timer_->DelayCalc().DriveDelay(Id("in"), 0, 1) * 1e9, 0.1 + 0.05 + 0.1, 1e-6);
  EXPECT_NEAR(SlewNs("in2", 1), 0.1, 1e-6);
  EXPECT_NEAR(timer_->DelayCalc().DriveDelay(Id("in2"), 1, 0) * 1e9, 0.1, 1e-6);
}

TEST_F(ConstraintInputsTest, AnIdealClockHasItsTransitionOverItsWholeNetwork) {
  Load(R"(module ci_clock(d, clk, q);
  input d, clk; output q; wire ck;
  BUF c1(.A(clk), .Z(ck));
  DFF r1(.D(d), .CK(ck), .Q(q));
endmodule)",
       "ci_clock");
  sta::sdc::Clock* clock = Store().MakeClock("clk");
  Store().SetClockWaveform(clock, 10e-9f, {0.0f, 5e-9f});
  Store().SetClockSources(clock, {Pin("clk")}, false);
  Store().SetClockTransition(clock, RiseFallBoth::rise_, MinMaxAll::kAll, 0.07e-9f);
  Time();
  EXPECT_NEAR(SlewNs("clk", 0), 0.07, 1e-6);
  EXPECT_NEAR(SlewNs("c1/Z", 0), 0.07, 1e-6);
  EXPECT_NEAR(SlewNs("r1/CK", 0), 0.07, 1e-6);
  EXPECT_NEAR(SlewNs("r1/CK", 1), 0.0, 1e-6);  // no fall transition set
  // Off the network the register's output has its table's slew.
  EXPECT_NEAR(SlewNs("q", 0), 0.04, 1e-6);
  // Propagated, the buffer's table gives the slew: 0.05 + 20 * 0.02.
  Store().SetClockPropagated(clock, true);
  ASSERT_TRUE(timer_->Update(false));
  EXPECT_NEAR(SlewNs("r1/CK", 0), 0.45, 1e-6);
}

TEST_F(ConstraintInputsTest, ConstantsAndCaseAnalysisTurnArcsOff) {
  Load(R"(module ci_const(a, b, c, z1, z2, z3);
  input a, b, c; output z1, z2, z3; wire t;
  assign t = 1'b0;
  AND2 g1(.A(a), .B(t), .Z(z1));
  AND2 g2(.A(a), .B(b), .Z(z2));
  XOR2 x1(.A(a), .B(c), .Z(z3));
endmodule)",
       "ci_const");
  Time();
  // A tie to 0 makes the AND's output 0: both its arcs are off, no slew.
  EXPECT_EQ(timer_->Constants().Value(Id("g1/Z")), 0);
  EXPECT_TRUE(Disabled("g1/A", "g1/Z"));
  EXPECT_EQ(SlewNs("z1"), 0.0);
  EXPECT_FALSE(Disabled("g2/A", "g2/Z"));
  // set_case_analysis 1 on b leaves g2 sensitive to a; 0 on c leaves the
  // XOR sensitive to a but its own arc off.
  Store().Pin(Pin("b")).case_value = cdm::kLogicOne;
  Store().Pin(Pin("c")).case_value = cdm::kLogicZero;
  Store().NoteChange();
  ASSERT_TRUE(timer_->Update(false));
  EXPECT_EQ(timer_->Constants().Value(Id("g2/B")), 1);
  EXPECT_EQ(timer_->Constants().Value(Id("g2/Z")), -1);
  EXPECT_FALSE(Disabled("g2/A", "g2/Z"));
  EXPECT_TRUE(Disabled("g2/B", "g2/Z"));
  EXPECT_FALSE(Disabled("x1/A", "x1/Z"));
  EXPECT_TRUE(Disabled("x1/B", "x1/Z"));
  EXPECT_NEAR(SlewNs("z3"), 0.05, 1e-6);
  // 0 on b holds the AND at 0 as well.
  Store().Pin(Pin("b")).case_value = cdm::kLogicZero;
  Store().NoteChange();
  ASSERT_TRUE(timer_->Update(false));
  EXPECT_EQ(timer_->Constants().Value(Id("z2")), 0);
  EXPECT_TRUE(Disabled("g2/A", "g2/Z"));
}

TEST_F(ConstraintInputsTest, DisabledTimingCutsTheArcsOfACellAndOfALibraryPin) {
  Load(R"(module ci_disable(a, b, z1, z2);
  input a, b; output z1, z2;
  BUF u1(.A(a), .Z(z1));
  AND2 g1(.A(a), .B(b), .Z(z2));
endmodule)",
       "ci_disable");
  cdm::Cell* u1 = cdm::DbManager::FindCell("u1");
  ASSERT_NE(u1, nullptr);
  Store().Disabled().push_back(
      sta::sdc::DisabledTiming{sta::sdc::SdcObject::Of({query::ObjectKind::kCell, u1}), "", ""});
  cdm::LibCell* and2 = Root()->GetLibertyLib("timer_small")->GetLibCell("AND2");
  Store().Disabled().push_back(sta::sdc::DisabledTiming{
      sta::sdc::SdcObject::Of({query::ObjectKind::kLibCell, and2}), "B", ""});
  Store().NoteChange();
  Time();
  EXPECT_TRUE(Disabled("u1/A", "u1/Z"));
  EXPECT_EQ(SlewNs("z1"), 0.0);
  EXPECT_TRUE(Disabled("g1/B", "g1/Z"));
  EXPECT_FALSE(Disabled("g1/A", "g1/Z"));
}

TEST_F(ConstraintInputsTest, AConstraintChangeRecomputesWithoutRebuildingTheGraph) {
  cdm::Design* design = Load(R"(module ci_update(in, out);
  input in; output out;
  BUF u1(.A(in), .Z(out));
endmodule)",
                             "ci_update");
  Time();
  EXPECT_EQ(timer_->UpdateCount(), 1u);
  EXPECT_EQ(timer_->GraphBuildCount(), 1u);
  ASSERT_TRUE(timer_->Update(false));
  EXPECT_EQ(timer_->UpdateCount(), 1u);
  Store().SetPortLoad(Port("out"), RiseFallBoth::rise_fall_, MinMaxAll::kAll, false, 0.03e-12f);
  ASSERT_TRUE(timer_->Update(false));
  EXPECT_EQ(timer_->UpdateCount(), 2u);
  EXPECT_EQ(timer_->GraphBuildCount(), 1u);
  EXPECT_NEAR(SlewNs("out"), 0.05 + 20 * 0.03, 1e-6);
  // Linking again rebuilds the graph; the load stays with the port.
  std::vector<std::string> warnings;
  std::string error;
  ASSERT_TRUE(cdm::LinkDesign(Root(), design, warnings, error)) << error;
  ASSERT_TRUE(timer_->Update(false));
  EXPECT_EQ(timer_->GraphBuildCount(), 2u);
  EXPECT_NEAR(SlewNs("out"), 0.05 + 20 * 0.03, 1e-6);
}

}  // namespace
