// Design-rule checks over a small design on tests/data/timer_small.lib
// (DFF/Q: max capacitance 0.1, min capacitance 0.004, max fan-out 4, max
// transition 0.5; INV/A fanout_load 2; default max transition 1.0).
#include <gtest/gtest.h>

#include <optional>

#include "graph/TimingGraph.h"
#include "hostapi/cdm/Pin.h"
#include "search/DesignRules.h"
#include "support/TimingTestUtil.h"

namespace {

using Kind = sta::RuleCheck::Kind;

// in1 -> u1 (BUF) -> r1/D; r1/Q -> u2 (INV) -> out1, r1/Q -> u3 (INV) -> n2.
const char* const kDesign = R"(module %s(in1, clk, out1);
  input in1, clk; output out1;
  wire n1, q1, n2;
  BUF u1(.A(in1), .Z(n1));
  DFF r1(.D(n1), .CK(clk), .Q(q1));
  INV u2(.A(q1), .Z(out1));
  INV u3(.A(q1), .Z(n2));
endmodule)";

class DesignRulesTest : public timingtest::TimingTest {
 protected:
  void LoadDesign(const std::string& top) {
    std::string text = kDesign;
    text.replace(text.find("%s"), 2, top);
    Load(text, top);
    Run("set_input_transition 0.1 [get_ports in1]");
  }
  void Check() { rules_.Check(Timed()); }
  // The check of `kind` at `pin` (the driving half), if any.
  std::optional<sta::RuleCheck> At(Kind kind, const std::string& pin) {
    const cdm::Pin* want = kind == Kind::kMaxArea ? nullptr : Pin(pin);
    for (const sta::RuleCheck& check : rules_.Checks()) {
      if (check.kind != kind) continue;
      if (kind == Kind::kMaxArea || Timed().Graph()->vertex(check.vertex)->pin() == want)
        return check;
    }
    return std::nullopt;
  }
  sta::DesignRules rules_;
};

TEST_F(DesignRulesTest, TheLibraryAloneSetsPinLimitsAndFanoutLoads) {
  LoadDesign("dr_library");
  Check();
  // r1/Q drives two INV inputs of 0.02 pF and fanout_load 2 each.
  const auto cap = At(Kind::kMaxCapacitance, "r1/Q");
  ASSERT_TRUE(cap);
  EXPECT_NEAR(cap->limit, 0.1e-12, 1e-18);
  EXPECT_NEAR(cap->actual, 0.04e-12, 1e-18);
  EXPECT_NEAR(cap->slack, 0.06e-12, 1e-18);
  const auto min_cap = At(Kind::kMinCapacitance, "r1/Q");
  ASSERT_TRUE(min_cap);
  EXPECT_NEAR(min_cap->slack, 0.036e-12, 1e-18);
  const auto fanout = At(Kind::kMaxFanout, "r1/Q");
  ASSERT_TRUE(fanout);
  EXPECT_FLOAT_EQ(fanout->actual, 4.0f);
  EXPECT_FLOAT_EQ(fanout->slack, 0.0f);
  // The pin's own max transition is tighter than the library's default;
  // other pins take the default.
  const auto q_slew = At(Kind::kMaxTransition, "r1/Q");
  ASSERT_TRUE(q_slew);
  EXPECT_NEAR(q_slew->limit, 0.5e-9, 1e-15);
  EXPECT_NEAR(q_slew->actual, 0.04e-9, 1e-15);
  const auto z_slew = At(Kind::kMaxTransition, "u1/Z");
  ASSERT_TRUE(z_slew);
  EXPECT_NEAR(z_slew->limit, 1.0e-9, 1e-15);
  EXPECT_NEAR(z_slew->actual, 0.27e-9, 1e-15);
  // No limit of capacitance or fan-out anywhere but at r1/Q; no max area.
  EXPECT_FALSE(At(Kind::kMaxCapacitance, "u1/Z"));
  EXPECT_FALSE(At(Kind::kMaxFanout, "u2/Z"));
  EXPECT_FALSE(rules_.Checked(Kind::kMaxArea));
}

TEST_F(DesignRulesTest, ConstraintsTightenTheLimitsAndCountOutsideLoads) {
  LoadDesign("dr_constraints");
  Run("set_max_transition 0.2 [current_design]\n"
      "set_max_capacitance 0.03 [current_design]\n"
      "set_max_fanout 3 [current_design]\n"
      "set_min_capacitance 0.02 [get_ports in1]\n"
      "set_port_fanout_number 2 [get_ports out1]\n"
      "set_fanout_load 1.5 [get_ports out1]\n"
      "set_max_area 15\n");
  Check();
  // The design's limits are the tighter ones now.
  const auto slew = At(Kind::kMaxTransition, "u1/Z");
  ASSERT_TRUE(slew);
  EXPECT_NEAR(slew->slack, -0.07e-9, 1e-15);
  const auto cap = At(Kind::kMaxCapacitance, "r1/Q");
  ASSERT_TRUE(cap);
  EXPECT_NEAR(cap->slack, -0.01e-12, 1e-18);
  const auto fanout = At(Kind::kMaxFanout, "r1/Q");
  ASSERT_TRUE(fanout);
  EXPECT_FLOAT_EQ(fanout->slack, -1.0f);
  // Outside the design: two fan-out points and a fan-out load of 1.5, at
  // the driver and at the output port alike.
  const auto outside = At(Kind::kMaxFanout, "u2/Z");
  ASSERT_TRUE(outside);
  EXPECT_FLOAT_EQ(outside->actual, 3.5f);
  const auto port = At(Kind::kMaxFanout, "out1");
  ASSERT_TRUE(port);
  EXPECT_FLOAT_EQ(port->actual, 3.5f);
  // A min capacitance on an input port: the larger of it and nothing.
  const auto min_cap = At(Kind::kMinCapacitance, "in1");
  ASSERT_TRUE(min_cap);
  EXPECT_NEAR(min_cap->slack, -0.01e-12, 1e-18);
  // BUF 2 + DFF 6 + two INV 1 against 15.
  const auto area = At(Kind::kMaxArea, "");
  ASSERT_TRUE(area);
  EXPECT_FLOAT_EQ(area->actual, 10.0f);
  EXPECT_FLOAT_EQ(area->slack, 5.0f);
}

}  // namespace
