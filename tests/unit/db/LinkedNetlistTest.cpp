// Netlists linked against real libraries: directions, drivers and loads,
// the paths through cells, tie cells and pin capacitance come from the
// library.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "db/Linker.h"
#include "db/PathLookup.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/DesignIterators.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Root.h"
#include "liberty/LibertyReader.h"
#include "verilog/VerilogReader.h"

namespace {

std::string Data(const std::string& file) {
  return std::string(KELVO_TEST_DATA) + "/" + file;
}

template <class T>
std::vector<std::string> FullNames(const std::vector<T*>& objects) {
  std::vector<std::string> names;
  for (const T* object : objects) names.push_back(object->GetFullName());
  return names;
}

// The nangate45 library is read once for the suite.
class NangateTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    root_ = new cdm::Root();
    std::string error;
    ASSERT_NE(liberty::ReadLibertyFile(root_, Data("nangate45_typ.lib.gz"), error), nullptr)
        << error;
  }
  static void TearDownTestSuite() {
    delete root_;
    root_ = nullptr;
  }

  cdm::Design* Link(const std::string& text, const std::string& top) {
    std::vector<std::string> modules;
    std::string error;
    // The suite shares one root: a netlist an earlier case read is there.
    if (!root_->FindDesign(top)) {
      EXPECT_TRUE(verilog::ReadVerilogText(root_, text, top + ".v", modules, error)) << error;
    }
    cdm::Design* design = root_->FindDesign(top);
    if (!design) return nullptr;
    warnings_.clear();
    EXPECT_TRUE(cdm::LinkDesign(root_, design, warnings_, error)) << error;
    return design;
  }

  static cdm::Root* root_;
  std::vector<std::string> warnings_;
};
cdm::Root* NangateTest::root_ = nullptr;

// example1.v: three flops, a buffer and an AND gate, module "top".
cdm::Design* LinkExample(cdm::Root* root, std::vector<std::string>& warnings) {
  std::vector<std::string> modules;
  std::string error;
  if (!root->FindDesign("top")) {
    EXPECT_TRUE(verilog::ReadVerilogFile(root, Data("example1.v"), modules, error)) << error;
  }
  cdm::Design* design = root->FindDesign("top");
  if (!design) return nullptr;
  warnings.clear();
  EXPECT_TRUE(cdm::LinkDesign(root, design, warnings, error)) << error;
  return design;
}

TEST_F(NangateTest, EveryCellResolvesWithPinsOfTheLibrary) {
  cdm::Design* top = LinkExample(root_, warnings_);
  ASSERT_NE(top, nullptr);
  EXPECT_TRUE(warnings_.empty()) << warnings_[0];
  cdm::Cell* u2 = top->FindCell("u2");
  ASSERT_NE(u2->GetRefLibCell(), nullptr);
  EXPECT_EQ(u2->GetRef()->GetRefText(), "AND2_X1");
  EXPECT_TRUE(u2->GetRef()->IsLibRef());
  EXPECT_EQ(u2->PinCount(), 3u);
  EXPECT_FALSE(u2->IsConstCell());
  EXPECT_FALSE(u2->IsGTechCell());
  // An unconnected library pin is still a pin of the cell.
  cdm::Cell* r1 = top->FindCell("r1");
  ASSERT_NE(r1->FindPin("QN"), nullptr);
  EXPECT_EQ(r1->FindPin("QN")->GetNet(), nullptr);
}

TEST_F(NangateTest, DriversAndLoadsFollowLibraryDirections) {
  cdm::Design* top = LinkExample(root_, warnings_);
  ASSERT_NE(top, nullptr);
  cdm::Net* u1z = top->FindNet("u1z");
  ASSERT_NE(u1z->GetDriverPin(), nullptr);
  EXPECT_EQ(u1z->GetDriverPin()->GetFullName(), "u1/Z");
  std::vector<const cdm::Pin*> loads;
  u1z->GetFanoutPins(loads, cdm::kHierFlat);
  EXPECT_EQ(FullNames(loads), std::vector<std::string>{"u2/A2"});
  cdm::Pin* in1 = top->FindPin("in1");
  loads.clear();
  in1->GetFanoutPins(loads, cdm::kHierFlat);
  EXPECT_EQ(FullNames(loads), std::vector<std::string>{"r1/D"});
  std::vector<const cdm::Pin*> drivers;
  top->FindPin("out")->GetFaninPins(drivers, cdm::kHierFlat);
  EXPECT_EQ(FullNames(drivers), std::vector<std::string>{"r3/Q"});
  EXPECT_EQ(top->FindCell("u2")->FindPin("A1")->GetCurrentDriverPin()->GetFullName(), "r1/Q");
  // A driver is its own fan-in, a load its own fan-out: cones start there.
  drivers.clear();
  u1z->GetDriverPin()->GetFaninPins(drivers, cdm::kHierFlat);
  EXPECT_EQ(FullNames(drivers), std::vector<std::string>{"u1/Z"});
  loads.clear();
  top->FindCell("u2")->FindPin("A2")->GetFanoutPins(loads, cdm::kHierFlat);
  EXPECT_EQ(FullNames(loads), std::vector<std::string>{"u2/A2"});
}

TEST_F(NangateTest, PathsThroughCellsStopAtSequentialCells) {
  cdm::Design* top = LinkExample(root_, warnings_);
  ASSERT_NE(top, nullptr);
  cdm::Cell* u2 = top->FindCell("u2");
  cdm::Pin* a1 = u2->FindPin("A1");
  ASSERT_NE(a1->GetInputOutputPin(false), nullptr);
  EXPECT_EQ(a1->GetInputOutputPin(false)->GetFullName(), "u2/ZN");
  EXPECT_EQ(FullNames(u2->FindPin("ZN")->GetOutputInputPins(false)),
            (std::vector<std::string>{"u2/A1", "u2/A2"}));
  cdm::Cell* r1 = top->FindCell("r1");
  EXPECT_EQ(r1->FindPin("D")->GetInputOutputPin(false), nullptr);
  EXPECT_TRUE(r1->FindPin("Q")->GetOutputInputPins(false).empty());
  // An output pin has nothing ahead of it inside the cell.
  EXPECT_EQ(u2->FindPin("ZN")->GetInputOutputPin(false), nullptr);
}

TEST_F(NangateTest, PinCapacitanceComesFromTheLibraryInFarads) {
  cdm::Design* top = LinkExample(root_, warnings_);
  ASSERT_NE(top, nullptr);
  float cap =
      top->FindCell("u2")->FindPin("A1")->Capacitance(cdm::RiseFall::rise_, cdm::MinMax::max_);
  EXPECT_GT(cap, 1e-16f);
  EXPECT_LT(cap, 1e-13f);
  EXPECT_EQ(top->FindPin("in1")->Capacitance(cdm::RiseFall::rise_, cdm::MinMax::max_), 0.0f);
}

TEST_F(NangateTest, TieCellsAreConstCells) {
  cdm::Design* top = Link(R"(
module tie (y, z);
  output y, z;
  LOGIC1_X1 hi (.Z(y));
  LOGIC0_X1 lo (.Z(z));
endmodule)",
                          "tie");
  ASSERT_NE(top, nullptr);
  EXPECT_TRUE(top->FindCell("hi")->IsConstCell());
  EXPECT_TRUE(top->FindCell("lo")->IsConstCell());
  EXPECT_FALSE(cdm::DbManager::HasUnmappedGtechCell(top));
}

// The whole sky130hd gcd: every cell but the physical-only tap cells,
// which the timing library leaves out, finds its library cell.
TEST(Sky130Gcd, LinksAgainstItsLibrary) {
  cdm::Root root;
  std::string error;
  ASSERT_NE(liberty::ReadLibertyFile(&root, Data("sky130hd_tt.lib.gz"), error), nullptr) << error;
  std::vector<std::string> modules;
  ASSERT_TRUE(verilog::ReadVerilogFile(&root, Data("gcd_sky130hd.v"), modules, error)) << error;
  cdm::Design* gcd = root.FindDesign("gcd");
  std::vector<std::string> warnings;
  ASSERT_TRUE(cdm::LinkDesign(&root, gcd, warnings, error)) << error;
  ASSERT_EQ(warnings.size(), 1u);
  EXPECT_NE(warnings[0].find("'sky130_fd_sc_hd__tapvpwrvgnd_1' (1040 cells)"), std::string::npos)
      << warnings[0];
  size_t linked = 0;
  for (cdm::DesignCellIterator it(gcd, true, cdm::func<cdm::Cell>); it.HasNext();)
    if (it.Next()->GetRefLibCell()) ++linked;
  EXPECT_EQ(linked, 1292u - 1040u);
  // Every net with a load has exactly one driver, a leaf output or an input port.
  size_t driven = 0;
  for (cdm::AllPinIterator it(gcd, false, [](const cdm::Pin* pin) { return pin->IsNetDriver(); });
       it.HasNext();) {
    cdm::Pin* pin = it.Next();
    if (!pin->GetNet()) continue;
    std::vector<const cdm::Pin*> drivers;
    pin->GetNet()->GetFaninPins(drivers, cdm::kHierFlat);
    EXPECT_EQ(drivers.size(), 1u) << pin->GetNet()->GetFullName();
    ++driven;
  }
  EXPECT_GT(driven, 250u);
}

}  // namespace
