#include <gtest/gtest.h>

#include "design/DesignArea.h"
#include "hostapi/cdm/Cell.h"
#include "liberty/LibertyReader.h"
#include "support/DesignTestUtil.h"

namespace {

// `leaf` holds a tie cell and an inverter; `pair` two instances of leaf and
// a buffer.
const char* kNetlist = R"(
module leaf (a, y); input a; output y; wire h;
  TIEHI t (.Y(h)); NAND2X1 g (.A(a), .B(h), .Y(y)); endmodule
module pair (a, y); input a; output y; wire m;
  leaf l0 (.a(a), .y(m)); leaf l1 (.a(m), .y(y)); BUFX2 b (.A(a)); endmodule
module chip (a, y); input a; output y; pair p (.a(a), .y(y)); endmodule
)";

class DesignAreaTest : public designtest::DesignTest {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_NE(liberty::ReadLibertyFile(&root_, KELVO_TEST_DATA "/rpt_small.lib", error), nullptr)
        << error;
    top_ = Load(kNetlist, "chip");
  }
  cdm::Design* top_ = nullptr;
};

TEST_F(DesignAreaTest, InstanceAreaLeavesConstantCellsOut) {
  ASSERT_NE(top_, nullptr);
  cdm::Cell* pair = top_->FindCell("p");
  ASSERT_NE(pair, nullptr);
  // 2 x NAND2X1 (2.5) + BUFX2 (2); the two TIEHI (1.5 each) do not count.
  EXPECT_FLOAT_EQ(ComputeInstanceArea(pair), 7.0f);
  cdm::Design* leaf = root_.FindDesign("leaf");
  ASSERT_NE(leaf, nullptr);
  cdm::Cell* tie = leaf->FindCell("t");
  ASSERT_NE(tie, nullptr);
  EXPECT_FLOAT_EQ(ComputeInstanceArea(tie), 1.5f);  // a library cell is its own area
}

TEST_F(DesignAreaTest, DesignAreaCountsEveryLeafAndAdds) {
  ASSERT_NE(top_, nullptr);
  float area = 1.0f;  // the caller's running value is added to
  ComputeDesignArea(root_.FindDesign("pair"), area);
  EXPECT_FLOAT_EQ(area, 1.0f + 2 * (2.5f + 1.5f) + 2.0f);
}

}  // namespace
