// The next-state column of a state table: row indexes built from input
// patterns and used internal pins (with the running sum that later
// internal patterns add onto), the packed text reversed as a whole, and
// the headings with doubled inputs and used internal pins.
#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibStateTable.h"
#include "library/ReportLibSections.h"

namespace {

class InternalPinTableTest : public ::testing::Test {
 protected:
  cdm::LibPort* MakePort(const std::string& name) {
    names_.push_back(std::make_unique<std::string>(name));
    ports_.push_back(std::make_unique<cdm::LibPort>(names_.back().get(), 0, nullptr));
    return ports_.back().get();
  }
  // Rows whose text for internal pin 0 is one letter from 'a' on, and for
  // pin 1 the same letter upper case.
  static std::vector<std::vector<std::string>> LetterRows(int count) {
    std::vector<std::vector<std::string>> rows;
    for (int r = 0; r < count; ++r) {
      rows.push_back(
          {std::string(1, static_cast<char>('a' + r)), std::string(1, static_cast<char>('A' + r))});
    }
    return rows;
  }
  std::string Print(const cdm::LibStateTable& table, size_t pin, bool full) {
    std::ostringstream os;
    ended_ = !PrintInternalPinTable(os, &table, pin, full);
    return os.str();
  }
  bool ended_ = false;  // the last Print passed the rows

 private:
  std::vector<std::unique_ptr<std::string>> names_;
  std::vector<std::unique_ptr<cdm::LibPort>> ports_;
};

TEST_F(InternalPinTableTest, WithoutUsedInternalPinsEachInputPatternReadsOneRow) {
  cdm::LibStateTable table;
  table.input_ports = {MakePort("D")};
  table.internal_ports = {MakePort("IQ")};
  table.expanded_rows = cdm::StateTableRows({{"L"}, {"x"}, {"H"}, {"y"}});  // index = input << 1
  EXPECT_EQ(Print(table, 0, true),
            "  INTERNAL PIN(IQ): D\n"
            "    TABLE: \n"
            "    0    L\n"
            "    1    H\n"
            "  END_PIN IQ;\n");
  // Packed: the values of the last pattern come first.
  EXPECT_EQ(Print(table, 0, false),
            "  INTERNAL PIN(IQ): D\n"
            "    TABLE: HL\n"
            "  END_PIN IQ;\n");
}

TEST_F(InternalPinTableTest, DoubledInputTakesAStarredAndAPlainColumn) {
  cdm::LibStateTable table;
  table.input_ports = {MakePort("CK"), MakePort("D")};
  table.internal_ports = {MakePort("IQ")};
  table.doubled_inputs = {0};
  std::vector<std::vector<std::string>> rows(16, {"-"});
  rows[2 << 1] = {"LH"};  // pattern 010
  table.expanded_rows = cdm::StateTableRows(rows);
  const std::string packed = Print(table, 0, false);
  EXPECT_EQ(packed.substr(0, packed.find('\n')), "  INTERNAL PIN(IQ): CK*, CK, D");
  // Eight patterns over three columns; a value of several characters comes
  // out mirrored in the packed text.
  EXPECT_EQ(packed, "  INTERNAL PIN(IQ): CK*, CK, D\n    TABLE: -----HL--\n  END_PIN IQ;\n");
}

TEST_F(InternalPinTableTest, UsedInternalPinsAddTheirBitsOntoARunningSum) {
  cdm::LibStateTable table;
  table.input_ports = {MakePort("A")};
  table.internal_ports = {MakePort("P"), MakePort("Q")};
  table.SetUsedInternalPortsIndex({0, 1});
  table.expanded_rows = cdm::StateTableRows(LetterRows(16));
  // Input 0: base 0; LL +0 -> a, LH +1 -> b, HL +2 -> d, HH +3 -> g.
  // Input 1: base 4; LL -> e, LH -> f, HL -> h, HH -> k.
  EXPECT_EQ(Print(table, 0, true),
            "  INTERNAL PIN(P): A, P*, Q*\n"
            "    TABLE: \n"
            "    0 :LL:    a\n"
            "    0 :LH:    b\n"
            "    0 :HL:    d\n"
            "    0 :HH:    g\n"
            "    1 :LL:    e\n"
            "    1 :LH:    f\n"
            "    1 :HL:    h\n"
            "    1 :HH:    k\n"
            "  END_PIN P;\n");
  EXPECT_EQ(Print(table, 1, false),
            "  INTERNAL PIN(Q): A, P*, Q*\n"
            "    TABLE: KHFEGDBA\n"
            "  END_PIN Q;\n");
}

TEST_F(InternalPinTableTest, OneUsedPinOfTwoWeighsByItsPosition) {
  cdm::LibStateTable table;
  table.input_ports = {MakePort("A")};
  table.internal_ports = {MakePort("P"), MakePort("Q")};
  table.SetUsedInternalPortsIndex({1});  // Q alone: weight 1
  table.expanded_rows = cdm::StateTableRows(LetterRows(8));
  // Base 0: L -> a, H -> b; base 4: L -> e, H -> f.
  EXPECT_EQ(Print(table, 0, false), "  INTERNAL PIN(P): A, Q*\n    TABLE: feba\n  END_PIN P;\n");
}

// Two used pins: the running sum reaches 2 + 2 + 3 = 7 on the last
// pattern of input 0 and passes the 8 rows from input 1 on (4 + 1 = 5,
// + 2 = 7, + 3 = 10). What was read prints; one line ends the table.
TEST_F(InternalPinTableTest, ARunningSumPastTheRowsEndsTheTableWithOneLine) {
  cdm::LibStateTable table;
  table.input_ports = {MakePort("A")};
  table.internal_ports = {MakePort("P"), MakePort("Q")};
  table.SetUsedInternalPortsIndex({0, 1});
  table.expanded_rows = cdm::StateTableRows(LetterRows(8));
  EXPECT_EQ(Print(table, 0, true),
            "  INTERNAL PIN(P): A, P*, Q*\n"
            "    TABLE: \n"
            "    0 :LL:    a\n"
            "    0 :LH:    b\n"
            "    0 :HL:    d\n"
            "    0 :HH:    g\n"
            "    1 :LL:    e\n"
            "    1 :LH:    f\n"
            "    1 :HL:    h\n"
            "  TABLE ENDS: row 10 is beyond the 8 rows of the state table\n");
  EXPECT_TRUE(ended_);
  EXPECT_EQ(Print(table, 1, false),
            "  INTERNAL PIN(Q): A, P*, Q*\n"
            "    TABLE: HFEGDBA\n"
            "  TABLE ENDS: row 10 is beyond the 8 rows of the state table\n");
  EXPECT_TRUE(ended_);
}

TEST_F(InternalPinTableTest, RowsFewerThanThePatternsAreNeverRead) {
  cdm::LibStateTable table;
  table.input_ports = {MakePort("A"), MakePort("B")};
  table.internal_ports = {MakePort("IQ")};
  table.expanded_rows = cdm::StateTableRows(LetterRows(3));
  EXPECT_EQ(Print(table, 0, false),
            "  INTERNAL PIN(IQ): A, B\n"
            "    TABLE: ca\n"  // patterns 00 and 01 read rows 0 and 2; 10 would read 4
            "  TABLE ENDS: row 4 is beyond the 3 rows of the state table\n");
}

// From 32 input columns the patterns no longer fit a signed 32-bit integer:
// the conversion fails as a standard one does, under the name "stoi".
TEST_F(InternalPinTableTest, ThirtyTwoInputColumnsEndInTheConversionError) {
  cdm::LibStateTable table;
  for (int i = 0; i < 31; ++i) table.input_ports.push_back(MakePort("I" + std::to_string(i)));
  table.doubled_inputs = {0};
  table.internal_ports = {MakePort("IQ")};
  try {
    Print(table, 0, false);
    ADD_FAILURE() << "no error";
  } catch (const std::out_of_range& error) {
    EXPECT_STREQ(error.what(), "stoi");
  }
}

}  // namespace
