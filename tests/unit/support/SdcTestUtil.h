// Stands small designs up in the database's own root, where the constraint
// store looks for them. Module names must differ from test to test, as a
// module once read stays in the root.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

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
#include "sdc/SdcStore.h"
#include "verilog/VerilogReader.h"

namespace sdctest {

inline std::string DataPath(const std::string& file) {
  return std::string(KELVO_TEST_DATA) + "/" + file;
}

class SdcTest : public ::testing::Test {
 protected:
  static cdm::Root* Root() { return cdm::DbManager::GetRoot(); }

  // Reads timer_small.lib once into the database's root.
  static void LoadLibrary() {
    if (Root()->GetLibertyLib("timer_small")) return;
    std::string error;
    ASSERT_NE(liberty::ReadLibertyFile(Root(), DataPath("timer_small.lib"), error), nullptr)
        << error;
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

}  // namespace sdctest
