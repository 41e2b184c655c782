// Stands small designs up in the database's own root with constraints given
// as SDC text through the real commands, and times them.
#pragma once

#include <gtest/gtest.h>
#include <tcl.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "cmdlib/HostCommands.h"
#include "cmdlib/TclBinding.h"
#include "graph/GraphBuilder.h"
#include "search/PathEnds.h"
#include "search/Timer.h"
#include "support/SdcTestUtil.h"

namespace timingtest {

class TimingTest : public sdctest::SdcTest {
 protected:
  static void SetUpTestSuite() {
    cmdlib::CreateHostCommands();
    if (!interp_) {
      interp_ = Tcl_CreateInterp();
      cmdlib::BindCommands(interp_);
    }
  }

  // Runs SDC (or any) commands; fails the test on an error.
  void Run(const std::string& script) {
    ASSERT_EQ(Tcl_Eval(interp_, script.c_str()), TCL_OK) << Tcl_GetStringResult(interp_);
  }

  // A timer of its own for the current design, brought up to date.
  sta::Timer& Timed() {
    if (!timer_) timer_ = std::make_unique<sta::Timer>(Root());
    EXPECT_TRUE(timer_->Update(false));
    return *timer_;
  }

  uint32_t Vertex(const std::string& pin) { return sta::LoadVertex(Pin(pin)); }

  // The ends at a pin on one side, worst first.
  std::vector<sta::PathEnd> EndsAt(const std::string& pin, bool setup) {
    std::vector<sta::PathEnd> ends;
    const uint32_t v = Vertex(pin);
    for (const sta::PathEnd& end : Timed().Search().Ends().Ends())
      if (end.vertex == v && end.setup == setup) ends.push_back(end);
    std::stable_sort(ends.begin(), ends.end(), [](const sta::PathEnd& a, const sta::PathEnd& b) {
      return a.slack < b.slack;
    });
    return ends;
  }
  // The worst slack at a pin in ns; NAN when it has no end.
  double SlackNs(const std::string& pin, bool setup = true) {
    const std::vector<sta::PathEnd> ends = EndsAt(pin, setup);
    return ends.empty() ? std::nan("") : ends.front().slack * 1e9;
  }
  // The latest (max) or earliest (min) arrival in ns over all tags.
  double ArrivalNs(const std::string& pin, int rf, int mm = 1) {
    sta::ArrivalSearch& search = Timed().Search().Arrivals();
    const uint32_t v = sta::DriverVertex(Pin(pin));
    double best = std::nan("");
    for (const sta::Arrival* a = search.Begin(v); a != search.End(v); ++a) {
      if (!a->Has(rf, mm)) continue;
      const double value = a->Get(rf, mm) * 1e9;
      if (std::isnan(best) || (mm == 1 ? value > best : value < best)) best = value;
    }
    return best;
  }
  const std::string& GroupOf(const sta::PathEnd& end) {
    return Timed().Search().Ends().Groups()[end.group];
  }

  static Tcl_Interp* interp_;
  std::unique_ptr<sta::Timer> timer_;
};

inline Tcl_Interp* TimingTest::interp_ = nullptr;

}  // namespace timingtest
