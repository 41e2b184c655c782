// The calling convention as a Tcl script sees it: parse, prevExec, exec on
// 0, postExec; a report's status is its result; host commands fail loudly.
#include <gtest/gtest.h>
#include <tcl.h>

#include <cstdio>
#include <stdexcept>
#include <string>

#include "cmdlib/Interrupt.h"
#include "cmdlib/TclBinding.h"
#include "hostapi/cmd/CommonCmd.h"
#include "hostapi/cmd/Interrupt.h"
#include "hostapi/msg/Msg.h"
#include "support/CaptureResult.h"

namespace {

const CmdModuleInfo kReportModule{true, "Report"};

// Records the hooks it went through; what each returns is set per case.
class Probe : public CommonCmd {
 public:
  Probe(const char* name, bool report) : CommonCmd(name, "probe", nullptr) {
    if (report) module = &kReportModule;
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("count", "an integer", false, ValueType::kInteger, std::any());
  }
  int prevExec() override {
    trace += "prev ";
    return prev_status;
  }
  int exec() override {
    trace += "exec ";
    if (interrupt_in_exec) cmdlib::RequestInterrupt();
    if (throw_interrupted) cmdlib::ThrowIfInterrupted();
    if (stop_on_interrupt && common::InterruptRequested()) return 1;
    if (print) msg::Print_Result("printed by %s", name().c_str());
    if (throw_in_exec) throw std::runtime_error("broken");
    if (!error.empty()) SetTclError(error);
    return exec_status;
  }
  int postExec() override {
    trace += "post ";
    return 0;
  }
  void printUsage() override { trace += "usage "; }

  std::string trace;
  int prev_status = 0;
  int exec_status = 0;
  bool throw_in_exec = false;
  bool interrupt_in_exec = false;  // as if Ctrl-C came during exec
  bool throw_interrupted = false;  // a reader: unwinds at its checkpoint
  bool stop_on_interrupt = false;  // a report: returns 1 at its checkpoint
  bool print = false;
  std::string error;
};

int wakes = 0;

class BindingTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    report_ = new Probe("probe_report", true);
    host_ = new Probe("probe_host", false);
  }
  void SetUp() override {
    interp_ = Tcl_CreateInterp();
    cmdlib::BindCommands(interp_);
    for (Probe* probe : {report_, host_}) {
      probe->trace.clear();
      probe->prev_status = probe->exec_status = 0;
      probe->throw_in_exec = false;
      probe->interrupt_in_exec = probe->throw_interrupted = probe->stop_on_interrupt = false;
      probe->print = false;
      probe->error.clear();
    }
    cmdlib::ClearInterrupt();
    wakes = 0;
    cmdlib::SetInterruptWaker([] { ++wakes; });
  }
  void TearDown() override {
    cmdlib::ClearInterrupt();
    cmdlib::SetInterruptWaker(nullptr);
    Tcl_DeleteInterp(interp_);
  }

  int Eval(const char* script) { return Tcl_Eval(interp_, script); }
  std::string Result() { return Tcl_GetStringResult(interp_); }

  static Probe* report_;
  static Probe* host_;
  Tcl_Interp* interp_ = nullptr;
};

Probe* BindingTest::report_ = nullptr;
Probe* BindingTest::host_ = nullptr;

TEST_F(BindingTest, ReportStatusIsTheResultAndFailureIsNoError) {
  EXPECT_EQ(Eval("probe_report"), TCL_OK);
  EXPECT_EQ(Result(), "0");
  EXPECT_EQ(report_->trace, "prev exec post ");
  report_->exec_status = 1;
  EXPECT_EQ(Eval("set s [probe_report]; set s"), TCL_OK);
  EXPECT_EQ(Result(), "1");
}

TEST_F(BindingTest, FailedPrevExecSkipsExecAndPostExec) {
  report_->prev_status = 1;
  EXPECT_EQ(Eval("probe_report"), TCL_OK);
  EXPECT_EQ(Result(), "1");
  EXPECT_EQ(report_->trace, "prev ");
}

TEST_F(BindingTest, HelpPrintsUsageOnly) {
  EXPECT_EQ(Eval("probe_report -help"), TCL_OK);
  EXPECT_EQ(report_->trace, "usage ");
}

TEST_F(BindingTest, BadArgumentsRunNothingAndRaise) {
  EXPECT_EQ(Eval("probe_report -count many"), TCL_ERROR);
  EXPECT_EQ(Result(), "Error: probe_report: option '-count' expects an integer, got 'many'");
  EXPECT_EQ(Eval("probe_report stray"), TCL_ERROR);
  EXPECT_EQ(Result(), "Error: probe_report: unexpected argument 'stray'");
  EXPECT_EQ(report_->trace, "");
}

TEST_F(BindingTest, HostCommandFailuresRaise) {
  host_->exec_status = 1;
  host_->error = "probe_host: no such file 'x.v'";
  EXPECT_EQ(Eval("probe_host"), TCL_ERROR);
  EXPECT_EQ(Result(), "Error: probe_host: no such file 'x.v'");
  // Failing without a message still fails.
  host_->error.clear();
  EXPECT_EQ(Eval("probe_host"), TCL_ERROR);
  EXPECT_EQ(Result(), "Error: probe_host: failed");
  // The message of one call does not stick to the next.
  host_->exec_status = 0;
  EXPECT_EQ(Eval("probe_host"), TCL_OK);
}

TEST_F(BindingTest, ExceptionBecomesATclError) {
  report_->throw_in_exec = true;
  EXPECT_EQ(Eval("probe_report"), TCL_ERROR);
  EXPECT_EQ(Result(), "Error: probe_report: internal error: broken");
  EXPECT_EQ(Eval("catch probe_report; set after ok"), TCL_OK);
}

// Ctrl-C during a command: a command that stops at its checkpoint, by
// status or by unwinding, fails with "Interrupted" and the interrupt is
// answered; one that finishes keeps its result and leaves the interrupt to
// the next safe point of the script.
TEST_F(BindingTest, InterruptedCommandsFailWithInterrupted) {
  report_->interrupt_in_exec = report_->stop_on_interrupt = true;
  EXPECT_EQ(Eval("probe_report"), TCL_ERROR);
  EXPECT_EQ(Result(), "Interrupted");
  EXPECT_FALSE(cmdlib::InterruptPending());

  host_->interrupt_in_exec = host_->throw_interrupted = true;
  EXPECT_EQ(Eval("probe_host"), TCL_ERROR);
  EXPECT_EQ(Result(), "Interrupted");
  EXPECT_EQ(host_->trace, "prev exec ");  // no postExec after unwinding
  EXPECT_FALSE(cmdlib::InterruptPending());
  EXPECT_EQ(wakes, 0);
}

TEST_F(BindingTest, CommandThatFinishesDespiteInterruptKeepsItsResult) {
  report_->interrupt_in_exec = true;
  EXPECT_EQ(Eval("probe_report"), TCL_OK);
  EXPECT_EQ(Result(), "0");
  EXPECT_TRUE(cmdlib::InterruptPending());
  EXPECT_EQ(wakes, 1);
}

TEST_F(BindingTest, GreaterThanAtTheEndWritesTheTextToAFile) {
  report_->print = true;
  const std::string path = ::testing::TempDir() + "binding_redirect.txt";
  formattest::CaptureResult screen;
  ASSERT_EQ(Eval(("probe_report > " + path).c_str()), TCL_OK);
  ASSERT_EQ(Eval(("probe_report >> " + path).c_str()), TCL_OK);
  EXPECT_EQ(screen.Take(), "");
  ASSERT_EQ(Eval(("set f [open " + path + "]; set t [read $f]; close $f; set t").c_str()), TCL_OK);
  EXPECT_EQ(Result(), "printed by probe_report\nprinted by probe_report\n");
  // The options before ">" are the command's; a target that cannot be
  // written runs nothing.
  report_->trace.clear();
  EXPECT_EQ(Eval("probe_report -count 2 > /nonexistent/dir/x"), TCL_ERROR);
  EXPECT_EQ(report_->trace, "");
  EXPECT_NE(Result().find("cannot open '/nonexistent/dir/x'"), std::string::npos);
  std::remove(path.c_str());
}

}  // namespace
