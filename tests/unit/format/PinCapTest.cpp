#include <gtest/gtest.h>

#include "format/ReportMgr.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Pin.h"
#include "liberty/LibertyReader.h"
#include "support/DesignTestUtil.h"

namespace {

class PinCapTest : public designtest::DesignTest {};

TEST_F(PinCapTest, LibraryCapacitanceOfSeveralPinsInOneVector) {
  std::string error;
  ASSERT_NE(liberty::ReadLibertyFile(&root_, KELVO_TEST_DATA "/rpt_small.lib", error), nullptr)
      << error;
  cdm::Design* top = Load(
      "module t (a, y); input a; output y;\n"
      "DFFX1 r (.D(a), .CK(a), .Q(y)); endmodule\n");
  ASSERT_NE(top, nullptr);
  cdm::Cell* reg = top->FindCell("r");
  ASSERT_NE(reg, nullptr);
  std::vector<float> caps;
  PinCap(reg->FindPin("CK"), caps);
  PinCap(reg->FindPin("D"), caps);
  ASSERT_EQ(caps.size(), 4u);
  // 0.02 and 0.01 pF, held in farads; rise first, then fall, pin by pin.
  EXPECT_FLOAT_EQ(caps[0], 0.02e-12f);
  EXPECT_FLOAT_EQ(caps[1], 0.02e-12f);
  EXPECT_FLOAT_EQ(caps[2], 0.01e-12f);
  EXPECT_FLOAT_EQ(caps[3], 0.01e-12f);
}

}  // namespace
