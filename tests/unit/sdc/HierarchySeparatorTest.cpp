// set_hierarchy_separator: names of cells, nets and pins written with the
// chosen character find the objects the database names with "/"; regular
// expressions and the names of ports are taken as written.
#include <gtest/gtest.h>

#include "support/SdcTestUtil.h"

namespace {

// Two levels below the top; the port "p.q" holds a dot in its own name.
const char* const kDesign = R"(module sep_leaf (a, y);
  input a; output y;
  INV u_inv (.A(a), .Z(y));
endmodule
module sep_mid (a, y);
  input a; output y; wire n;
  sep_leaf l1 (.a(a), .y(n));
  sep_leaf l2 (.a(n), .y(y));
endmodule
module sep_top (in, \p.q , out);
  input in, \p.q ; output out; wire n5;
  sep_mid u1 (.a(in), .y(n5));
  AND2 u2 (.A(n5), .B(\p.q ), .Z(out));
endmodule)";

class HierarchySeparatorTest : public sdctest::SdcShellTest {
 protected:
  void SetUp() override {
    SdcShellTest::SetUp();
    LoadOnce(kDesign, "sep_top");
    Eval("set_hierarchy_separator /");
  }
};

TEST_F(HierarchySeparatorTest, PatternsWithTheSeparatorFindHierarchicalObjectsNamedWithSlashes) {
  Eval("set_hierarchy_separator .");
  EXPECT_EQ(Eval("get_cells u1.l1.u_inv"), "u1/l1/u_inv");
  EXPECT_EQ(Eval("get_cells u1.*.u_inv"), "u1/l1/u_inv u1/l2/u_inv");
  EXPECT_EQ(Eval("get_cells -hierarchical l2.*"), "u1/l2/u_inv");
  EXPECT_EQ(Eval("get_nets u1.n"), "u1/n");
  EXPECT_EQ(Eval("get_pins u1.l2.u_inv.A"), "u1/l2/u_inv/A");
  EXPECT_EQ(Eval("get_pins u1.l?.u_inv.Z"), "u1/l1/u_inv/Z u1/l2/u_inv/Z");
  EXPECT_EQ(Eval("get_cells u1/l1/u_inv"), "u1/l1/u_inv") << "'/' is taken as well";
  // Names given where objects are expected.
  EXPECT_EQ(Eval("get_nets -of_objects u1.l1.u_inv.Z"), "u1/l1/y");
  EXPECT_EQ(Eval("get_attribute u1.l2.u_inv ref_name"), "INV");
  Eval("set_case_analysis 1 u1.l2.u_inv.A");
  EXPECT_EQ(Store().FindPin(Pin("u1/l2/u_inv/A"))->case_value, cdm::kLogicOne);
  EXPECT_EQ(Printed(), "");

  Eval("set_hierarchy_separator |");
  EXPECT_EQ(Eval("get_cells u1|l1|u_inv"), "u1/l1/u_inv");
  EXPECT_EQ(Eval("get_cells -quiet u1.l1.u_inv"), "") << "'.' is no separator any more";
}

TEST_F(HierarchySeparatorTest, RegularExpressionsAndPortNamesAreTakenAsWritten) {
  EXPECT_EQ(Eval("get_cells -quiet u1.l1.u_inv"), "") << "without set_hierarchy_separator";
  Eval("set_hierarchy_separator .");
  EXPECT_EQ(Eval("get_cells -regexp {u1/l[12]/u_inv}"), "u1/l1/u_inv u1/l2/u_inv");
  EXPECT_EQ(Eval("get_cells -quiet -regexp {u1\\.l1\\.u_inv}"), "");
  EXPECT_EQ(Eval("get_ports p.q"), "p.q");
  EXPECT_EQ(Eval("get_nets -of_objects p.q"), "p.q");
  Eval("set_load 0.01 p.q");
  const sta::sdc::PortConstraints* port = Store().FindPort(Port("p.q"));
  ASSERT_TRUE(port && port->load);
  EXPECT_TRUE(port->load->getPinCap(cdm::RiseFall::rise_, cdm::MinMax::max_).has_value());
  // The warning names the pattern as the user wrote it.
  EXPECT_EQ(Eval("get_cells u1.zz"), "");
  EXPECT_NE(Printed().find("'u1.zz'"), std::string::npos);
}

}  // namespace
