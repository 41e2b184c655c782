// Stands small designs up in the database's own root, where the constraint
// store looks for them. Module names must differ from test to test, as a
// module once read stays in the root.
#pragma once

#include <gtest/gtest.h>
#include <tcl.h>

#include <string>
#include <vector>

#include "cmdlib/HostCommands.h"
#include "cmdlib/TclBinding.h"
#include "db/Linker.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"
#include "liberty/LibertyReader.h"
#include "msg/ResultChannel.h"
#include "sdc/SdcStore.h"
#include "verilog/VerilogReader.h"

namespace sdctest {

inline std::string DataPath(const std::string& file) {
  return std::string(KELVO_TEST_DATA) + "/" + file;
}

class SdcTest : public ::testing::Test {
 protected:
  static cdm::Root* Root() { return cdm::DbManager::GetRoot(); }

  // Reads timer_small.lib once into the database's root and makes it the
  // default library (ns, pF, kohm), which another test may have changed.
  static void LoadLibrary() {
    cdm::LibertyLib* lib = Root()->GetLibertyLib("timer_small");
    std::string error;
    if (!lib) lib = liberty::ReadLibertyFile(Root(), DataPath("timer_small.lib"), error);
    ASSERT_NE(lib, nullptr) << error;
    if (Root()->GetDefaultLiberty() != lib) Root()->SetDefaultLiberty(lib);
  }

  // Reads `text` and links `top`, which becomes the current design.
  cdm::Design* Load(const std::string& text, const std::string& top) {
    LoadLibrary();
    std::vector<std::string> modules, warnings;
    std::string error;
    EXPECT_TRUE(verilog::ReadVerilogText(Root(), text, top + ".v", modules, error)) << error;
    cdm::Design* design = Root()->FindDesign(top);
    EXPECT_NE(design, nullptr);
    if (!design) return nullptr;
    EXPECT_TRUE(cdm::LinkDesign(Root(), design, warnings, error)) << error;
    return design;
  }

  // Load, the first time; later calls link `top` again, which becomes the
  // current design once more.
  cdm::Design* LoadOnce(const std::string& text, const std::string& top) {
    cdm::Design* design = Root()->FindDesign(top);
    if (!design) return Load(text, top);
    std::vector<std::string> warnings;
    std::string error;
    EXPECT_TRUE(cdm::LinkDesign(Root(), design, warnings, error)) << error;
    return design;
  }

  static sta::sdc::SdcMgr* Sdc() { return sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr); }
  static sta::sdc::SdcStore& Store() { return Sdc()->store(); }

  static cdm::Port* Port(const std::string& name) {
    cdm::Port* port = cdm::DbManager::GetCurrentDesign()->FindPort(name);
    EXPECT_NE(port, nullptr) << name;
    return port;
  }
  static cdm::Pin* Pin(const std::string& name) {
    cdm::Pin* pin = cdm::DbManager::FindPin(name);
    EXPECT_NE(pin, nullptr) << name;
    return pin;
  }
};

// Runs commands through the shell's own binding, as the prompt and read_sdc
// do. Messages and printed text are caught while a test runs.
class SdcShellTest : public SdcTest {
 protected:
  static void SetUpTestSuite() {
    cmdlib::CreateHostCommands();
    if (shell_) return;
    shell_ = Tcl_CreateInterp();
    cmdlib::BindCommands(shell_);
  }
  void SetUp() override {
    msg::PushResultSink([this](std::string_view text) { printed_ += text; });
  }
  void TearDown() override { msg::PopResultSink(); }

  // The result of `script`; an error fails the test.
  std::string Eval(const std::string& script) {
    const int status = Tcl_Eval(shell_, script.c_str());
    EXPECT_EQ(status, TCL_OK) << script << ": " << Tcl_GetStringResult(shell_);
    return Tcl_GetStringResult(shell_);
  }
  // The error message of `script`; success fails the test.
  std::string Error(const std::string& script) {
    const int status = Tcl_Eval(shell_, script.c_str());
    EXPECT_EQ(status, TCL_ERROR) << script << " succeeded: " << Tcl_GetStringResult(shell_);
    return Tcl_GetStringResult(shell_);
  }
  // What was printed (messages included) since the last call.
  std::string Printed() {
    std::string text;
    text.swap(printed_);
    return text;
  }

  static Tcl_Interp* shell_;
  std::string printed_;
};

inline Tcl_Interp* SdcShellTest::shell_ = nullptr;

}  // namespace sdctest
