// Switching activity worked out through cells, checked by hand over
// tests/data/activity_small.lib. Inputs switch independently: an AND of
// inputs with probabilities pa, pb and densities da, db is 1 with pa*pb
// and switches pb*da + pa*db times a second; a register samples its next
// state once a clock period: data that moves at most once a period it
// follows up to 2p(1-p) of the edges; data whose rate sums several
// switching inputs changes it 2p(1-p) (1 - exp(-D / (2p(1-p) edges))) of
// the time.
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
  EXPECT_RATE(Net("clk").rate, 2e8);
  EXPECT_NEAR(Net("clk").probability, 0.5, 1e-9);
  EXPECT_EQ(Net("clk").origin, ActivityOrigin::kClock);
  // AND: 0.5 * 0.2; 0.2 * 1e8 + 0.5 * 2e7.
  EXPECT_NEAR(Net("n_and").probability, 0.1, 1e-9);
  EXPECT_RATE(Net("n_and").rate, 3e7);
  EXPECT_EQ(Net("n_and").origin, ActivityOrigin::kPropagated);
  // OR: 1 - 0.5 * 0.6; 0.6 * 1e8 + 0.5 * 5e7.
  EXPECT_NEAR(Net("n_or").probability, 0.7, 1e-9);
  EXPECT_RATE(Net("n_or").rate, 8.5e7);
  // XOR: 0.1 * 0.3 + 0.9 * 0.7; every input decides it.
  EXPECT_NEAR(Net("n_xor").probability, 0.66, 1e-9);
  EXPECT_RATE(Net("n_xor").rate, 1.15e8);
  EXPECT_NEAR(Net("n_inv").probability, 0.34, 1e-9);
  EXPECT_RATE(Net("n_inv").rate, 1.15e8);
  // The register: at most 2 * 0.34 * 0.66 of the 1e8 rising edges a
  // second, 4.488e7; the data's 1.15e8 sums two switching XOR inputs:
  // 4.488e7 (1 - exp(-1.15e8 / 4.488e7)).
  EXPECT_NEAR(Net("q").probability, 0.34, 1e-9);
  EXPECT_RATE(Net("q").rate, 4.141884e7);
  EXPECT_NEAR(Net("qn").probability, 0.66, 1e-9);
  EXPECT_RATE(Net("qn").rate, 4.141884e7);

  // Slow data: the XOR's inputs both follow a (taken as independent, so
  // 1 half the time and 2e6 transitions a second, summed over two inputs):
  // 5e7 (1 - exp(-2e6 / 5e7)), a little under 2e6.
  Annotate("a", 1e6, 0.5);
  Annotate("b", 0.0, 1.0);
  Annotate("c", 0.0, 0.0);
  EXPECT_RATE(Net("n_xor").rate, 2e6);
  EXPECT_RATE(Net("q").rate, 1.960528e6);
  EXPECT_NEAR(Net("q").probability, 0.5, 1e-9);
  // Data with one switching input moves at most once a period: the
  // register follows it, up to 2p(1-p) of the edges.
  Annotate("c", 0.0, 1.0);
  EXPECT_RATE(Net("n_xor").rate, 1e6);
  EXPECT_RATE(Net("q").rate, 1e6);
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
  EXPECT_RATE(Net("z3").rate, 2e8);  // both inputs decide an XOR
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
  // Held three times in four: EN decides when D differs from the state
  // (half the time), D when EN is 1: 0.5 * 1e7 + 0.25 * 4e7, summed over
  // two inputs, so 5e7 (1 - exp(-1.5e7 / 5e7)).
  EXPECT_RATE(Net("q").rate, 1.2959089e7);
  EXPECT_NEAR(Net("q").probability, 0.5, 1e-6);
  // A combinational loop and a register feeding itself end within the bound.
  EXPECT_NE(capture.Take().find("Combinational loop cut"), std::string::npos);
  EXPECT_LE(store_->LastPasses(), power::ActivityPropagator::kMaxPasses);
  EXPECT_TRUE(std::isfinite(Net("y").rate));
  EXPECT_GE(Net("y").probability, 0.0);
  EXPECT_LE(Net("y").probability, 1.0);
}

TEST_F(ActivityPropagationTest, RegistersAreWorkedOutAfterTheirDataInOnePass) {
  LoadDesign(R"(module act_pipe(clk, d, q);
  input clk, d; output q; wire q1, q2, n1, n2;
  A_DFF r1(.D(d), .CK(clk), .Q(q1));
  A_INV i1(.A(q1), .Z(n1));
  A_DFF r2(.D(n1), .CK(clk), .Q(q2));
  A_INV i2(.A(q2), .Z(n2));
  A_DFF r3(.D(n2), .CK(clk), .Q(q));
endmodule)",
             "act_pipe");
  Clock("clk", 10e-9f);
  Annotate("d", 4e7, 0.25);
  // Each stage: min(4e7, 2 p (1 - p) 1e8) with p 0.25, then 0.75, 0.25.
  EXPECT_RATE(Net("q").rate, 3.75e7);
  EXPECT_NEAR(Net("q").probability, 0.25, 1e-9);
  // One pass works it out, a second finds nothing moved.
  EXPECT_EQ(store_->LastPasses(), 2);
}

}  // namespace
