// Area estimates of generic gates: made from the default library whenever
// a gate's area is read, so that no report depends on another having run.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Root.h"
#include "liberty/LibertyReader.h"

namespace {

// Two libraries of the same functions with different areas; `big` has its
// smallest inverter last, and a tie cell.
const char* kSmall = R"(
library (small) {
  cell (INV1) { area : 1.5 ; pin (A) { direction : input ; }
    pin (Y) { direction : output ; function : "!A" ; } }
  cell (NAND) { area : 2 ; pin (A) { direction : input ; } pin (B) { direction : input ; }
    pin (Y) { direction : output ; function : "(A B)'" ; } }
})";
const char* kBig = R"(
library (big) {
  cell (INV4) { area : 4 ; pin (A) { direction : input ; }
    pin (Y) { direction : output ; function : "!A" ; } }
  cell (INV2) { area : 3 ; pin (A) { direction : input ; }
    pin (Y) { direction : output ; function : "!A" ; } }
  cell (TIE0) { area : 0.5 ; pin (Y) { direction : output ; function : "0" ; } }
  cell (DLY) { area : 0.25 ; dont_use : true ; pin (A) { direction : input ; }
    pin (Y) { direction : output ; function : "!A" ; } }
})";

class GtechAreaTest : public ::testing::Test {
 protected:
  cdm::LibertyLib* Read(const char* text, const char* file) {
    std::string error;
    auto lib = liberty::ParseLiberty(&root_, text, file, error);
    EXPECT_NE(lib, nullptr) << error;
    return lib ? root_.AddLibertyLib(std::move(lib)) : nullptr;
  }
  float GenericArea(const std::string& name) {
    cdm::LibCell* cell = root_.GetGenericLib()->GetLibCell(name);
    EXPECT_NE(cell, nullptr) << name;
    return cell ? cell->GetArea() : -1.0f;
  }
  cdm::Root root_;
};

TEST_F(GtechAreaTest, EstimateIsThereBeforeAnyReportAndFollowsTheDefaultLibrary) {
  EXPECT_EQ(GenericArea("INV"), 0.0f) << "no library, no estimate";
  cdm::LibertyLib* small = Read(kSmall, "small.lib");
  cdm::LibertyLib* big = Read(kBig, "big.lib");
  ASSERT_TRUE(small && big);
  ASSERT_EQ(root_.GetDefaultLiberty(), small);
  // Read without anything having asked for an estimate first.
  EXPECT_EQ(GenericArea("INV"), 1.5f);
  EXPECT_EQ(GenericArea("NAND2"), 2.0f);  // "(A B)'" is !(A&B)
  EXPECT_EQ(GenericArea("AND2"), 0.0f);   // nothing computes it
  EXPECT_EQ(GenericArea("INV"), 1.5f) << "reading it again changes nothing";
  root_.SetDefaultLiberty(big);
  EXPECT_EQ(GenericArea("INV"), 3.0f) << "the smallest one not dont_use, wherever it stands";
  EXPECT_EQ(GenericArea("NAND2"), 0.0f);
  root_.SetDefaultLiberty(small);
  EXPECT_EQ(GenericArea("INV"), 1.5f);
}

TEST_F(GtechAreaTest, ConstantsAndSequentialGatesTakeNoArea) {
  cdm::LibertyLib* big = Read(kBig, "big.lib");
  ASSERT_NE(big, nullptr);
  // TIE0 computes what LOGIC0 does, but the area report never counts an
  // unmapped constant: no other report may give it an area either.
  EXPECT_EQ(GenericArea("LOGIC0"), 0.0f);
  EXPECT_EQ(GenericArea("LOGIC1"), 0.0f);
  EXPECT_EQ(GenericArea("DFF"), 0.0f);
  EXPECT_EQ(GenericArea("INV"), 3.0f);
}

}  // namespace
