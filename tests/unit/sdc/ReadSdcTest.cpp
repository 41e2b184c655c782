// read_sdc: an error names the file and the line of the command that failed
// (inside loops and procedures too) and stops the reading; what the file
// set before that line stays set, and files after it are not read.
// Warnings name the file and line as well, and the rest applies.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <fstream>

#include "support/SdcTestUtil.h"

namespace {

using cdm::MinMax;
using cdm::RiseFall;

class ReadSdcTest : public sdctest::SdcShellTest {
 protected:
  // A design of its own for each `top`, so that each case starts with an
  // empty store.
  void LoadDesign(const std::string& top) {
    Load("module " + top + R"( (a, o1, o2);
  input a; output o1, o2;
  BUF u1 (.A(a), .Z(o1));
  INV u2 (.A(a), .Z(o2));
endmodule)",
         top);
  }
  // Writes `text` to a file of the test's own; its path.
  std::string File(const std::string& name, const std::string& text) {
    const std::string path = ::testing::TempDir() + "read_sdc_" + name + ".sdc";
    std::ofstream(path) << text;
    files_.push_back(path);
    return path;
  }
  void TearDown() override {
    for (const std::string& path : files_) std::remove(path.c_str());
    SdcShellTest::TearDown();
  }
  // The pin load set on a port in pF, or -1 when none is set.
  float Load(const char* port) {
    const sta::sdc::PortConstraints* record = Store().FindPort(Port(port));
    if (!record || !record->load) return -1.0f;
    const auto value = record->load->getPinCap(RiseFall::rise_, MinMax::max_);
    return value ? *value * 1e12f : -1.0f;
  }
  using SdcShellTest::Load;

  std::vector<std::string> files_;
};

TEST_F(ReadSdcTest, AnErrorNamesFileAndLineStopsAndKeepsWhatCameBefore) {
  struct Case {
    const char* name;
    const char* text;
    const char* error;  // behind "FILE:"
    float o1, o2;       // the loads in pF afterwards; -1: unset
  };
  const Case cases[] = {
      {"loop", "set_load 0.1 o2\n\nforeach p {o1 o2} {\n  set_load 0.2 $p\n  set_load abc $p\n}\n",
       "5: set_load: option 'value' expects a number, got 'abc'", 0.2f, 0.1f},
      {"proc", "proc f {} {\n  set_load 0.1 o1\n  set_load -bogus 1 o1\n}\nf\nset_load 0.3 o2\n",
       "5: set_load: unknown option '-bogus'", 0.1f, -1.0f},
      {"brace", "set_load 0.1 o1\nset_load 0.2 {o2\n", "2: missing close-brace", 0.1f, -1.0f},
      {"unknown", "set_load 0.1 o1\nnot_a_command 1 2\nset_load 0.2 o2\n",
       "2: invalid command name \"not_a_command\"", 0.1f, -1.0f},
      {"expr", "set_load 0.4 o2\n\n\nset_load [expr {1/0}] o1\n", "4: divide by zero", -1.0f, 0.4f},
      {"range", "set_load 0.4 o1\nset_load 1e39 o2\n",
       "2: set_load: option 'value' expects a finite number within range, got '1e+39'", 0.4f,
       -1.0f},
  };
  for (const Case& each : cases) {
    LoadDesign(std::string("rs_") + each.name);
    const std::string path = File(each.name, each.text);
    const std::string error = "Error: read_sdc: " + path + ":" + each.error;
    EXPECT_EQ(Error("read_sdc " + path), error);
    // A script that does not catch the error shows its trace: it begins
    // with the same message, the file and line included.
    const std::string trace = Tcl_GetVar(shell_, "errorInfo", TCL_GLOBAL_ONLY);
    EXPECT_EQ(trace.substr(0, trace.find('\n')), error) << each.name;
    EXPECT_FLOAT_EQ(Load("o1"), each.o1) << each.name;
    EXPECT_FLOAT_EQ(Load("o2"), each.o2) << each.name;
  }
}

TEST_F(ReadSdcTest, FilesAfterAFailingOneAreNotReadAndAMissingFileSetsNothing) {
  LoadDesign("rs_files");
  const std::string bad = File("bad", "set_load 0.1 o1\nset_load x o1\n");
  const std::string good = File("good", "set_load 0.2 o2\n");
  EXPECT_EQ(Error("read_sdc " + bad + " " + good),
            "Error: read_sdc: " + bad + ":2: set_load: option 'value' expects a number, got 'x'; " +
                "not read: " + good);
  EXPECT_FLOAT_EQ(Load("o1"), 0.1f);
  EXPECT_FLOAT_EQ(Load("o2"), -1.0f);
  const std::string missing = ::testing::TempDir() + "read_sdc_nosuch.sdc";
  EXPECT_EQ(Error("read_sdc " + good + " " + missing),
            "Error: read_sdc: cannot open '" + missing +
                "': No such file or directory; no file was read");
  EXPECT_FLOAT_EQ(Load("o2"), -1.0f) << "nothing is read when a file is missing";
}

TEST_F(ReadSdcTest, WarningsNameTheLineInLoopsAndTheRestApplies) {
  LoadDesign("rs_warn");
  const std::string path = File(
      "warn", "# loads\nforeach p {nosuch o1} {\n  set_load 0.2 $p\n}\nset_load 0.3 {o2 gone}\n");
  Printed();
  Eval("read_sdc " + path);
  EXPECT_EQ(Printed(),
            "Warning: " + path + ":3: set_load: no port or net matches 'nosuch'. (SDC_001)\n" +
                "Warning: " + path + ":5: set_load: no port or net matches 'gone'. (SDC_001)\n");
  EXPECT_FLOAT_EQ(Load("o1"), 0.2f);
  EXPECT_FLOAT_EQ(Load("o2"), 0.3f);
}

}  // namespace
