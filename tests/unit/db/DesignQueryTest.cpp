#include "db/DesignQuery.h"
#include "support/DesignTestUtil.h"

namespace {

using designtest::DesignTest;
using Names = std::vector<std::string>;

const char* kChip = R"(
module alu (a, y); input [1:0] a; output y; G U1 (.A(a[0]), .Y(y)); G U2 (.A(a[1])); endmodule
module core (i, o); input [1:0] i; output o; wire t; alu u_alu (.a(i), .y(t)); G U1 (.A(t), .Y(o));
endmodule
module chip (data, q, io);
  input [1:0] data; output q; inout io;
  core u_core (.i(data), .o(q));
  G U1 (.A(1'b0), .Y(io));
  G U10 (.A(io));
endmodule
)";

class DesignQueryTest : public DesignTest {
 protected:
  void SetUp() override { top_ = Load(kChip); }
  Names Cells(const std::string& pattern, bool hier = false) {
    Names names;
    cdm::FindCellNames(top_, pattern, hier, names);
    return names;
  }
  cdm::Design* top_ = nullptr;
};

TEST_F(DesignQueryTest, CellsAtTheTopLevelByLocalName) {
  ASSERT_NE(top_, nullptr);
  EXPECT_EQ(Cells("U*"), (Names{"U1", "U10"}));
  EXPECT_EQ(Cells("U?"), (Names{"U1"}));
  EXPECT_EQ(Cells("*"), (Names{"u_core", "U1", "U10"}));
  EXPECT_TRUE(Cells("nothing").empty());
}

TEST_F(DesignQueryTest, CellsThroughHierarchy) {
  ASSERT_NE(top_, nullptr);
  EXPECT_EQ(Cells("u_core/*"), (Names{"u_core/u_alu", "u_core/U1"}));
  EXPECT_EQ(Cells("u_core/u_alu/U2"), (Names{"u_core/u_alu/U2"}));
  // Over full names a wildcard stays within one level.
  EXPECT_EQ(Cells("*/U1"), (Names{"u_core/U1"}));
  EXPECT_EQ(Cells("*/*/U?"), (Names{"u_core/u_alu/U1", "u_core/u_alu/U2"}));
  // Each level before the levels below it.
  EXPECT_EQ(Cells("U1", true), (Names{"U1", "u_core/U1", "u_core/u_alu/U1"}));
}

TEST_F(DesignQueryTest, NetsPinsAndPorts) {
  ASSERT_NE(top_, nullptr);
  Names names;
  cdm::FindNetNames(top_, "*", false, names);
  EXPECT_EQ(names, (Names{"data[1]", "data[0]", "q", "io"}));  // no tie net
  names.clear();
  cdm::FindNetNames(top_, "t", true, names);
  EXPECT_EQ(names, (Names{"u_core/t"}));
  names.clear();
  cdm::FindPinNames(top_, "U1*/A", false, names);
  EXPECT_EQ(names, (Names{"U1/A", "U10/A"}));
  names.clear();
  cdm::FindPinNames(top_, "u_core/*/a*", false, names);
  EXPECT_EQ(names, (Names{"u_core/u_alu/a[1]", "u_core/u_alu/a[0]"}));
  names.clear();
  cdm::FindPinNames(top_, "U1/Y", true, names);
  EXPECT_EQ(names, (Names{"U1/Y", "u_core/U1/Y", "u_core/u_alu/U1/Y"}));
  names.clear();
  cdm::FindPinNames(top_, "no_slash", false, names);
  EXPECT_TRUE(names.empty());
  names.clear();
  cdm::FindPortNames(top_, "data", names);
  EXPECT_EQ(names, (Names{"data[1]", "data[0]"}));
  names.clear();
  cdm::FindPortNames(top_, "data[0]", names);
  EXPECT_EQ(names, (Names{"data[0]"}));
  names.clear();
  cdm::FindDirectedPortNames(top_, true, names);
  EXPECT_EQ(names, (Names{"data[1]", "data[0]", "io"}));
  names.clear();
  cdm::FindDirectedPortNames(top_, false, names);
  EXPECT_EQ(names, (Names{"q", "io"}));
}

}  // namespace
