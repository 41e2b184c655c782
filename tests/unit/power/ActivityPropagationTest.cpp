// Switching activity worked out through cells, checked by hand over
// tests/data/activity_small.lib. Functions are worked out as written,
// operands taken as independent: an AND of operands with probabilities
// pa, pb and densities da, db is 1 with pa*pb and switches pb*da + pa*db
// times a second; an OR is 1 with pa + pb - pa*pb and switches
// (1-pb)*da + (1-pa)*db; an XOR operator switches da*pa*(1-pb) +
// db*(1-pa)*pb, as the established engines work it out. A register's
// state takes its next state's figures once, after the logic was worked
// out with every state at the primary inputs' default.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "hostapi/cdm/Net.h"
#include "power/ActivityPropagator.h"
#include "power/ActivityStore.h"
#include "search/Timer.h"
#include "support/CaptureResult.h"
#include "support/SdcTestUtil.h"

namespace {

// Rates to a part in a million: clock periods are 32-bit floats.
#define EXPECT_RATE(actual, expected) EXPECT_NEAR(actual, expected, 1e-6 * (expected) + 1e-3)

using power::ActivityOrigin;
using power::ActivitySetting;
using power::NetActivity;
using power::RateSetting;

class ActivityPropagationTest : public sdctest::SdcTest {
 protected:
  cdm::Design* LoadDesign(const std::string& text, const std::string& top) {
    if (!Root()->GetLibertyLib("activity_small")) {
      std::string error;
      EXPECT_NE(liberty::ReadLibertyFile(Root(), sdctest::DataPath("activity_small.lib"), error),
                nullptr)
          << error;
    }
    cdm::Design* design = Load(text, top);
    timer_ = std::make_unique<sta::Timer>(Root());
    store_ = std::make_unique<power::ActivityStore>(*timer_);
    return design;
  }
  void Clock(const std::string& port, float period) {
    sta::sdc::Clock* clock = Store().MakeClock(port);
    Store().SetClockWaveform(clock, period, {0.0f, period / 2});
    Store().SetClockSources(clock, {Pin(port)}, false);
  }
  // Rate in transitions per second and probability of net `net`.
  void Annotate(const std::string& net, double rate, double probability) {
    ActivitySetting setting;
    setting.rate = RateSetting{rate, false};
    setting.probability = probability;
    store_->Annotations().SetNet(net, setting);
  }
  const NetActivity& Net(const std::string& name) {
    EXPECT_TRUE(store_->Update());
    const cdm::Net* net = cdm::DbManager::GetCurrentDesign()->FindNet(name);
    EXPECT_NE(net, nullptr) << name;
    return store_->OfNet(net);
  }
  // The net's rate (transitions per second) and probability of being 1.
  void ExpectNet(const std::string& name, double rate, double probability) {
    const NetActivity& activity = Net(name);
    EXPECT_RATE(activity.rate, rate) << name;
    EXPECT_NEAR(activity.probability, probability, 1e-9) << name;
  }

  std::unique_ptr<sta::Timer> timer_;
  std::unique_ptr<power::ActivityStore> store_;
};

TEST_F(ActivityPropagationTest, AndOrXorInverterAndRegisterByHand) {
  LoadDesign(R"(module act_gates(clk, a, b, c, q, qn);
  input clk, a, b, c; output q, qn; wire n_and, n_or, n_xor, n_inv;
  A_AND2 u_and(.A(a), .B(b), .Z(n_and));
  A_OR2 u_or(.A(a), .B(c), .Z(n_or));
  A_XOR2 u_xor(.A(n_and), .B(n_or), .Z(n_xor));
  A_INV u_inv(.A(n_xor), .Z(n_inv));
  A_DFF u_ff(.D(n_inv), .CK(clk), .Q(q), .QN(qn));
endmodule)",
             "act_gates");
  Clock("clk", 10e-9f);
  Annotate("a", 1e8, 0.5);
  Annotate("b", 2e7, 0.2);
  Annotate("c", 5e7, 0.4);

  EXPECT_EQ(Net("a").origin, ActivityOrigin::kUser);
  // The clock: two toggles a period, 1 half the time.
  ExpectNet("clk", 2e8, 0.5);
  EXPECT_EQ(Net("clk").origin, ActivityOrigin::kClock);
  // AND: 0.5 * 0.2; 0.2 * 1e8 + 0.5 * 2e7.
  ExpectNet("n_and", 3e7, 0.1);
  EXPECT_EQ(Net("n_and").origin, ActivityOrigin::kPropagated);
  // OR: 1 - 0.5 * 0.6; 0.6 * 1e8 + 0.5 * 5e7.
  ExpectNet("n_or", 8.5e7, 0.7);
  // XOR: 0.1 * 0.3 + 0.9 * 0.7; each operand's density weighted by the
  // chance of its own term, A&!B and !A&B: 3e7 * 0.1 * 0.3 + 8.5e7 * 0.9 *
  // 0.7 (the engines' figure; the XOR's own density would be 1.15e8).
  ExpectNet("n_xor", 5.445e7, 0.66);
  ExpectNet("n_inv", 5.445e7, 0.34);
  // The register takes its data's figures, whatever its clock.
  ExpectNet("q", 5.445e7, 0.34);
  ExpectNet("qn", 5.445e7, 0.66);
}

TEST_F(ActivityPropagationTest, FunctionsWorkedOutAsWritten) {
  LoadDesign(R"(module act_sop(a, b, c, d, e, f, x1, x2);
  input a, b, c, d, e, f; output x1, x2;
  A_XNOR2S u1(.A(a), .B(b), .Z(x1));
  A_AOI22 u2(.A1(c), .A2(d), .B1(e), .B2(f), .Z(x2));
endmodule)",
             "act_sop");
  Annotate("a", 1e7, 0.4);
  Annotate("b", 2e7, 0.25);
  // (!A&!B): 0.6 x 0.75 = 0.45, 1e7 x 0.75 + 2e7 x 0.6 = 1.95e7;
  // (A&B): 0.1, 1e7 x 0.25 + 2e7 x 0.4 = 1.05e7; OR-ed: 0.45 + 0.1 -
  // 0.045 and 1.95e7 x 0.9 + 1.05e7 x 0.55. (The function itself, an
  // XNOR: 0.55 and 3e7.)
  ExpectNet("x1", 2.3325e7, 0.505);
  for (const char* net : {"c", "d", "e", "f"}) Annotate(net, 2e7, 0.5);
  // Each term 0.25 and 2e7; OR-ed left to right: 0.4375 and 3e7, then
  // 0.578125 and 3e7 x 0.75 + 2e7 x 0.5625 = 3.375e7, then 0.68359375 and
  // 3.375e7 x 0.75 + 2e7 x 0.421875 = 3.375e7. (The function itself:
  // 0.5625 and 3e7.)
  ExpectNet("x2", 3.375e7, 0.68359375);
}

TEST_F(ActivityPropagationTest, DefaultsClocksConstantsAndPartialSettings) {
  LoadDesign(R"(module act_seed(clk, a, b, c, z1, z2, z3);
  input clk, a, b, c; output z1, z2, z3; wire t;
  assign t = 1'b1;
  A_AND2 u1(.A(a), .B(t), .Z(z1));
  A_OR2 u2(.A(b), .B(c), .Z(z2));
  A_XOR2 u3(.A(a), .B(b), .Z(z3));
endmodule)",
             "act_seed");
  // No clock: nothing to measure the default against.
  EXPECT_EQ(Net("a").origin, ActivityOrigin::kDefault);
  EXPECT_EQ(Net("a").rate, 0.0);
  Clock("clk", 4e-9f);
  // 0.1 toggles a period of the fastest clock, 1 half the time.
  EXPECT_RATE(Net("a").rate, 0.1 / 4e-9);
  EXPECT_NEAR(Net("a").probability, 0.5, 1e-12);
  EXPECT_EQ(Net("t").origin, ActivityOrigin::kConstant);
  EXPECT_EQ(Net("t").probability, 1.0);
  // AND with a constant 1 is its other input.
  EXPECT_RATE(Net("z1").rate, Net("a").rate);
  // Case analysis holds c at 0: the OR is b, the net c is constant.
  Store().Pin(Pin("c")).case_value = cdm::kLogicZero;
  Store().NoteChange();
  EXPECT_EQ(Net("c").origin, ActivityOrigin::kConstant);
  EXPECT_EQ(Net("c").rate, 0.0);
  EXPECT_RATE(Net("z2").rate, 0.1 / 4e-9);
  EXPECT_NEAR(Net("z2").probability, 0.5, 1e-12);

  // The input default, settable; a constant stays a constant.
  ActivitySetting inputs;
  inputs.rate = RateSetting{0.4, true};
  inputs.probability = 0.25;
  store_->Annotations().SetInputs(inputs);
  EXPECT_RATE(Net("b").rate, 1e8);
  EXPECT_EQ(Net("b").origin, ActivityOrigin::kUser);
  EXPECT_EQ(Net("c").origin, ActivityOrigin::kConstant);
  // Only a probability on a cell's output: the rate is still worked out.
  ActivitySetting half;
  half.probability = 0.9;
  store_->Annotations().SetNet("z3", half);
  EXPECT_EQ(Net("z3").probability, 0.9);
  EXPECT_EQ(Net("z3").origin, ActivityOrigin::kUser);
  // 1e8 * 0.25 * 0.75 + 1e8 * 0.75 * 0.25.
  EXPECT_RATE(Net("z3").rate, 3.75e7);
  // Nothing changed: not worked out again.
  const uint64_t count = store_->ComputeCount();
  Net("z3");
  EXPECT_EQ(store_->ComputeCount(), count);
}

TEST_F(ActivityPropagationTest, EnabledRegisterAndLoopsSettle) {
  LoadDesign(R"(module act_loop(clk, en, d, a, q, y);
  input clk, en, d, a; output q, y; wire l1, l2, t1, t2;
  A_EDFF r1(.D(d), .EN(en), .CK(clk), .Q(q));
  A_XOR2 x1(.A(a), .B(l2), .Z(l1));
  A_INV i1(.A(l1), .Z(l2));
  A_DFF r2(.D(t2), .CK(clk), .Q(t1));
  A_INV i2(.A(t1), .Z(t2));
  A_AND2 y1(.A(t1), .B(l1), .Z(y));
endmodule)",
             "act_loop");
  formattest::CaptureResult capture;  // the loop's warning
  Clock("clk", 10e-9f);
  Annotate("en", 1e7, 0.25);
  Annotate("d", 4e7, 0.5);
  // The next state "(EN&D)|(!EN&IQ)" with the state at the inputs'
  // default (1e7, 0.5): (EN&D) 0.125 and 1e7 x 0.5 + 4e7 x 0.25 = 1.5e7;
  // (!EN&IQ) 0.375 and 1e7 x 0.5 + 1e7 x 0.75 = 1.25e7; OR-ed: 0.453125
  // and 1.5e7 x 0.625 + 1.25e7 x 0.875 = 2.03125e7.
  ExpectNet("q", 2.03125e7, 0.453125);
  // A combinational loop and a register feeding itself end within the bound.
  EXPECT_NE(capture.Take().find("Combinational loop cut"), std::string::npos);
  EXPECT_LE(store_->LastPasses(), 2 * power::ActivityPropagator::kMaxPasses);
  EXPECT_TRUE(std::isfinite(Net("y").rate));
  EXPECT_GE(Net("y").probability, 0.0);
  EXPECT_LE(Net("y").probability, 1.0);
}

TEST_F(ActivityPropagationTest, RegistersTakeTheirDataOnceAfterTheLogic) {
  LoadDesign(R"(module act_pipe(clk, d, q, q4, n5);
  input clk, d; output q, q4, n5; wire q1, q2, n1, n2, q5;
  A_DFF r1(.D(d), .CK(clk), .Q(q1));
  A_INV i1(.A(q1), .Z(n1));
  A_DFF r2(.D(n1), .CK(clk), .Q(q2));
  A_INV i2(.A(q2), .Z(n2));
  A_DFF r3(.D(n2), .CK(clk), .Q(q));
  A_DFF r4(.D(q1), .CK(clk), .Q(q4));
  A_DFF r5(.D(n5), .CK(clk), .Q(q5));
  A_INV i5(.A(q5), .Z(n5));
endmodule)",
             "act_pipe");
  Clock("clk", 10e-9f);
  Annotate("d", 4e7, 0.25);
  // First the logic, every state at the inputs' default (0.1 a period,
  // 1e7, and 0.5): nothing a seed reaches but the registers' data. Then
  // each state from its data: r1 from d, r4 from q1 straight (registers
  // in order), r2 and r3 from i1 and i2, which nothing had reached yet.
  ExpectNet("q1", 4e7, 0.25);
  ExpectNet("q4", 4e7, 0.25);
  ExpectNet("q2", 1e7, 0.5);
  EXPECT_RATE(Net("q").rate, 1e7);
  // Then the logic again from the register outputs that moved: i1, not i2.
  ExpectNet("n1", 4e7, 0.75);
  EXPECT_NEAR(Net("n2").probability, 0.5, 1e-9);
  // A loop nothing reaches keeps the default.
  ExpectNet("n5", 1e7, 0.5);
  // Passes: one that finds nothing to do, one for i1, one that finds
  // nothing moved.
  EXPECT_EQ(store_->LastPasses(), 3);
}

}  // namespace
