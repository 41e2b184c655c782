// The wire figures of a net come from the wire-load model in force: the one
// the constraint store holds for the design, else the default library's
// default model. A fan-out the model's table skips is interpolated.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "db/Linker.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"
#include "liberty/LibertyReader.h"
#include "sdc/SdcStore.h"
#include "verilog/VerilogReader.h"

namespace {

const char* kDesign =
    "module wl_top (a, y1, y2, y3);\n"
    "  input a;\n"
    "  output y1, y2, y3;\n"
    "  wire two, three;\n"
    "  BUFX1 d0 (.A(a), .Y(two));\n"
    "  INVX1 l0 (.A(two), .Y(y1));\n"
    "  INVX1 l1 (.A(two), .Y(y2));\n"
    "  BUFX1 d1 (.A(a), .Y(three));\n"
    "  INVX1 l2 (.A(three), .Y(y3));\n"
    "  INVX1 l3 (.A(three));\n"
    "  INVX1 l4 (.A(three));\n"
    "endmodule\n";

cdm::Design* LoadDesign() {
  cdm::Root* root = cdm::DbManager::GetRoot();
  std::string error;
  EXPECT_NE(liberty::ReadLibertyFile(root, std::string(KELVO_TEST_DATA) + "/conn_small.lib", error),
            nullptr)
      << error;
  std::vector<std::string> modules, warnings;
  EXPECT_TRUE(verilog::ReadVerilogText(root, kDesign, "wl_top.v", modules, error)) << error;
  cdm::Design* design = root->FindDesign("wl_top");
  EXPECT_NE(design, nullptr);
  if (design) {
    EXPECT_TRUE(cdm::LinkDesign(root, design, warnings, error)) << error;
  }
  return design;
}

TEST(WireLoadInForce, DefaultModelThenTheStoresModel) {
  cdm::Design* design = LoadDesign();
  ASSERT_NE(design, nullptr);
  ASSERT_EQ(cdm::DbManager::GetCurrentDesign(), design);
  cdm::Net* two = design->FindNet("two");
  cdm::Net* three = design->FindNet("three");
  float cap = 0.0f, res = 0.0f;
  // "small": 0.5 pF and 2 kohm per unit, length 0.01 per load.
  two->NetCapAndRes(nullptr, cap, res, cdm::MinMax::max_, cdm::kHierNetRC);
  EXPECT_FLOAT_EQ(cap, 0.02f * 0.5e-12f);
  EXPECT_FLOAT_EQ(res, 0.02f * 2e3f);

  // "large" for max only: 1 pF and 4 kohm per unit; fan-out 3 lies between
  // the entries for 2 (0.04) and 4 (0.08).
  sta::sdc::SdcMgr* sdc = sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr);
  const cdm::WireLoad* large = cdm::DbManager::GetDefaultLiberty()->GetWireLoad("large");
  ASSERT_NE(large, nullptr);
  sdc->store().Design().wire_load[cdm::MinMax::max_->index()] = large;
  two->NetCapAndRes(nullptr, cap, res, cdm::MinMax::max_, cdm::kHierNetRC);
  EXPECT_FLOAT_EQ(cap, 0.04f * 1e-12f);
  EXPECT_FLOAT_EQ(res, 0.04f * 4e3f);
  three->NetCapAndRes(nullptr, cap, res, cdm::MinMax::max_, cdm::kHierNetRC);
  EXPECT_FLOAT_EQ(cap, 0.06f * 1e-12f);
  two->NetCapAndRes(nullptr, cap, res, cdm::MinMax::min_, cdm::kHierNetRC);
  EXPECT_FLOAT_EQ(cap, 0.02f * 0.5e-12f);
  sdc->store().Design().wire_load[cdm::MinMax::max_->index()] = nullptr;
}

}  // namespace
