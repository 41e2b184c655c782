#include <gtest/gtest.h>

#include "format/ReportMgr.h"
#include "support/CaptureResult.h"

namespace {

using formattest::Blanks;
using formattest::CaptureResult;
using formattest::Dashes;

// Name (key) and Value, filled with two rows.
void FillExample(ReportTable& table) {
  table.AddItem("Name", true, "", ReportTable::kLeft, 0);
  table.AddItem("Value", false, "", ReportTable::kLeft, 0);
  table.InsertValue("Name", "abc", "");
  table.InsertValue("Value", "1", "");
  table.InsertValue("Name", "longer_name", "");
  table.InsertValue("Value", "22", "");
}

TEST(ReportTable, WorkedExample) {
  CaptureResult out;
  ReportTable table;
  FillExample(table);
  EXPECT_EQ(table.ColumnWidth("Name"), 15);
  EXPECT_EQ(table.ColumnWidth("Value"), 9);
  table.PrintTable(0, true);
  EXPECT_EQ(out.Take(), "\nName" + Blanks(11) + "Value\n" + Dashes(23) + "\nabc" + Blanks(12) +
                            "1\nlonger_name" + Blanks(4) + "22\n" + Dashes(23) + "\n");
}

TEST(ReportTable, IndentCountsTwiceInTheRuleButOnceInSeparators) {
  CaptureResult out;
  ReportTable table;
  FillExample(table);
  table.InsertSeparator('=');
  table.PrintTable(2, true);
  // Rule: 2 blanks and 2 + 24 - 1 dashes; closing separator: 2 blanks, 24 fills.
  EXPECT_EQ(out.Take(), "\n  Name" + Blanks(11) + "Value\n  " + Dashes(25) + "\n  abc" +
                            Blanks(12) + "1\n  longer_name" + Blanks(4) + "22\n  " +
                            std::string(24, '=') + "\n");
}

TEST(ReportTable, EmptyTables) {
  CaptureResult out;
  {
    ReportTable table;
    table.AddItem("Name", true);
    table.PrintTable(0, false);
    EXPECT_EQ(out.Take(), "\n");
  }
  {
    ReportTable table;
    table.AddItem("Name", true);
    table.AddItem("Value", false);
    table.InsertSeparator('-');
    table.PrintTable(0, true);
    EXPECT_EQ(out.Take(), "\nName    Value\n" + Dashes(16) + "\n");
  }
  {
    ReportTable table;
    table.title = "A title";
    table.AddItem("Name", true);
    table.PrintTable(0, true);
    EXPECT_EQ(out.Take(), "\nA title\nName\n" + Dashes(7) + "\n");
  }
}

TEST(ReportTable, TableWithoutColumnsPrintsOnlyItsOpening) {
  CaptureResult out;
  ReportTable table;
  table.InsertValue("ghost", "x");
  table.InsertSeparator('-');
  table.PrintTable(0, true);
  EXPECT_EQ(out.Take(), "\n");
  table.title = "Only a title";
  table.PrintTable(3, true);
  EXPECT_EQ(out.Take(), "\nOnly a title\n");
}

TEST(ReportTable, LateLongCellWidensTheWholeColumn) {
  CaptureResult out;
  ReportTable table;
  table.AddItem("ABCDEFGHIJ", true);
  table.AddItem("Next", false);
  EXPECT_EQ(table.ColumnWidth("ABCDEFGHIJ"), 14);
  table.InsertValue("ABCDEFGHIJ", "short");
  table.InsertValue("Next", "n1");
  table.InsertValue("ABCDEFGHIJ", std::string(20, 'x'));
  table.InsertValue("Next", "n2");
  EXPECT_EQ(table.ColumnWidth("ABCDEFGHIJ"), 24);
  table.PrintTable(0, true);
  EXPECT_EQ(out.Take(), "\nABCDEFGHIJ" + Blanks(14) + "Next\n" + Dashes(31) + "\nshort" +
                            Blanks(19) + "n1\n" + std::string(20, 'x') + Blanks(4) + "n2\n" +
                            Dashes(31) + "\n");
}

TEST(ReportTable, KeyFirstOrKeyLastGiveTheSameRows) {
  CaptureResult out;
  ReportTable first;
  first.AddItem("K", true);
  first.AddItem("V", false);
  first.InsertValue("K", "a");
  first.InsertValue("V", "1");
  first.InsertValue("K", "b");
  first.InsertValue("V", "2");
  first.PrintTable(0, true);
  std::string key_first = out.Take();

  ReportTable last;
  last.AddItem("K", true);
  last.AddItem("V", false);
  last.InsertValue("V", "1");
  last.InsertValue("K", "a");
  last.InsertValue("V", "2");
  last.InsertValue("K", "b");
  last.PrintTable(0, true);
  EXPECT_EQ(out.Take(), key_first);
  EXPECT_EQ(key_first, "\nK    V\n" + Dashes(9) + "\na    1\nb    2\n" + Dashes(9) + "\n");
}

TEST(ReportTable, SecondValuesLandInTheNextRowOrAreDroppedButStillWiden) {
  CaptureResult out;
  ReportTable table;
  table.AddItem("K", true);
  table.AddItem("V", false);
  // Key first: the second value of V waits for the next row.
  table.InsertValue("K", "a");
  table.InsertValue("V", "1");
  table.InsertValue("V", "2");
  table.InsertValue("K", "b");
  // Key last: the second value is dropped, but its length still counts.
  table.InsertValue("V", "3");
  table.InsertValue("V", "dropped-but-wide");
  table.InsertValue("K", "c");
  EXPECT_EQ(table.RowCount(), 3);
  EXPECT_EQ(table.ColumnWidth("V"), 20);
  table.PrintTable(0, true);
  EXPECT_EQ(out.Take(),
            "\nK    V\n" + Dashes(24) + "\na    1\nb    2\nc    3\n" + Dashes(24) + "\n");
}

TEST(ReportTable, SkippedCellsAndLateColumnsPrintEmpty) {
  CaptureResult out;
  ReportTable table;
  table.AddItem("K", true);
  table.AddItem("V", false);
  table.InsertValue("K", "a");
  table.InsertValue("K", "b");
  table.InsertValue("V", "2");
  table.AddItem("Late", false);
  table.InsertValue("Late", "z");
  table.InsertValue("V", "waits");  // for a row that never comes
  table.PrintTable(0, true);
  EXPECT_EQ(out.Take(),
            "\nK    V        Late\n" + Dashes(21) + "\na\nb    2        z\n" + Dashes(21) + "\n");
}

TEST(ReportTable, SeparatorsBetweenAndAfterRows) {
  CaptureResult out;
  ReportTable table;
  FillExample(table);
  table.InsertSeparator('=');
  table.InsertSeparator('-');  // overwrites
  table.InsertValue("Name", "x");
  table.InsertSeparator(' ');
  table.InsertValue("Name", "y");
  table.InsertSeparator(' ');
  table.PrintTable(0, true);
  std::string expected = "\nName" + Blanks(11) + "Value\n" + Dashes(23) + "\nabc" + Blanks(12) +
                         "1\nlonger_name" + Blanks(4) + "22\n" + Dashes(24) + "\nx\n\ny\n" +
                         Blanks(24) + "\n";
  EXPECT_EQ(out.Take(), expected);
}

TEST(ReportTable, RowOfEmptyCellsIsAnEmptyLine) {
  CaptureResult out;
  ReportTable table;
  table.AddItem("K", true);
  table.AddItem("V", false);
  table.InsertValue("V", "");
  table.InsertValue("K", "");
  table.PrintTable(1, true);
  // The rule is 1 + 10 - 1 dashes long, after one blank.
  EXPECT_EQ(out.Take(), "\n K    V\n " + Dashes(10) + "\n\n " + Dashes(10) + "\n");
}

TEST(ReportTable, SecondAddItemChangesNothing) {
  ReportTable table;
  table.AddItem("A", false, "", ReportTable::kLeft, 20);
  table.AddItem("A", true, "", ReportTable::kRight, 3);
  EXPECT_EQ(table.ColumnWidth("A"), 20);
  EXPECT_EQ(table.KeyColumn(), "");
  EXPECT_EQ(table.Columns().size(), 1u);
  // The same name under another group is another column.
  table.AddItem("A", false, "G", ReportTable::kLeft, 0);
  EXPECT_EQ(table.Columns().size(), 2u);
  EXPECT_EQ(table.ColumnWidth("A", "G"), 5);
}

// Cell (key), A and B under a label longer than both, Design.
void FillGrouped(ReportTable& table) {
  table.AddItem("Cell", true);
  table.AddItem("A", false, "Local cell area");
  table.AddItem("B", false, "Local cell area");
  table.AddItem("Design", false);
  table.InsertValue("Cell", "c1");
  table.InsertValue("A", "1", "Local cell area");
  table.InsertValue("B", "2", "Local cell area");
  table.InsertValue("Design", "d");
}

TEST(ReportTable, GroupLabelWiderThanItsColumnsWidensThem) {
  CaptureResult out;
  ReportTable table;
  FillGrouped(table);
  table.PrintTable(0, true);
  // Span 5 - 5 + 1 = 1 + 5 = 6 < 15: column A takes the 9 missing characters.
  std::string expected = "\n        Local cell area\nCell    A             B    Design\n" +
                         Dashes(36) + "\nc1      1             2    d\n" + Dashes(36) + "\n";
  EXPECT_EQ(out.Take(), expected);
  EXPECT_EQ(table.ColumnWidth("A", "Local cell area"), 14);
  EXPECT_EQ(table.ColumnWidth("B", "Local cell area"), 5);
  // Printed again: the widths stay raised and the text is the same.
  table.PrintTable(0, true);
  EXPECT_EQ(out.Take(), expected);
}

TEST(ReportTable, GroupWideningSpreadsTheRemainderLeftmostFirst) {
  ReportTable table;
  table.AddItem("K", true);
  table.AddItem("A", false, "Twelve chars");
  table.AddItem("B", false, "Twelve chars");
  table.AddItem("C", false, "Twelve chars");
  CaptureResult out;
  table.PrintTable(0, true);
  // Span 5 + 5 + 1 = 11 < 12: one extra character, given to A.
  EXPECT_EQ(table.ColumnWidth("A", "Twelve chars"), 6);
  EXPECT_EQ(table.ColumnWidth("B", "Twelve chars"), 5);
  EXPECT_EQ(table.ColumnWidth("C", "Twelve chars"), 5);
  EXPECT_EQ(out.Take(), "\n     Twelve chars\nK    A     B    C\n" + Dashes(20) + "\n");
}

TEST(ReportTable, SingleColumnGroupOnlyLengthensTheLine) {
  CaptureResult out;
  ReportTable table;
  table.AddItem("K", true);
  table.AddItem("X", false, "Wide label");
  table.InsertValue("K", "k");
  table.InsertValue("X", "x", "Wide label");
  table.InsertSeparator('*');
  table.PrintTable(0, true);
  EXPECT_EQ(table.ColumnWidth("X", "Wide label"), 5);
  // total 10 + 9: the rule and the separator grow, the columns do not.
  EXPECT_EQ(out.Take(), "\n     Wide label\nK    X\n" + Dashes(18) + "\nk    x\n" +
                            std::string(19, '*') + "\n");
}

TEST(ReportTable, LaterGroupsMoveRightWithEarlierWidening) {
  CaptureResult out;
  ReportTable table;
  table.AddItem("P", false, "First group");
  table.AddItem("Q", false, "First group");
  table.AddItem("R", false, "G2");
  table.AddItem("S", false, "G2");
  table.AddItem("K", true);
  table.InsertValue("K", "k");
  table.PrintTable(0, true);
  // First group: span 6 < 11, P grows by 5 to 10; G2 then starts at 15.
  EXPECT_EQ(out.Take(), "\nFirst group" + Blanks(6) + "G2\nP         Q    R    S    K\n" +
                            Dashes(29) + "\n" + Blanks(25) + "k\n" + Dashes(29) + "\n");
}

TEST(ReportTable, InsertionForms) {
  CaptureResult out;
  ReportTable table;
  table.AddItem("K", true);
  table.AddItem("I", false);
  table.AddItem("F", false, "g");
  table.AddItem("D", false);
  table.InsertValue(0, "row");
  table.InsertValue(1, std::string("i1"));
  table.InsertValue(-1, "nothing");
  table.InsertValue(9, "nothing");
  table.InsertValue("nope", "nothing");
  table.InsertValue("F", "no group given");
  table.InsertValue("F", 2.5f, 2, "g");
  table.InsertValue("D", -1.0 / 3.0, 3, "");
  EXPECT_EQ(table.RowCount(), 1);
  table.InsertValue("K", -42);
  table.InsertValue("I", 7);
  table.PrintTable(0, false);
  std::string text = out.Take();
  EXPECT_NE(text.find("\nrow    i1"), std::string::npos) << text;
  EXPECT_NE(text.find("2.50"), std::string::npos) << text;
  EXPECT_NE(text.find("-0.333"), std::string::npos) << text;
  EXPECT_NE(text.find("\n-42    7"), std::string::npos) << text;
  EXPECT_EQ(text.find("no group"), std::string::npos) << text;
  EXPECT_EQ(text.find("nothing"), std::string::npos) << text;
}

TEST(ReportTable, PopBackUndoesTheLastRowOnly) {
  CaptureResult out;
  ReportTable table;
  table.AddItem("K", true);
  table.AddItem("V", false);
  table.InsertValue("K", "a");
  table.InsertValue("V", "1");
  table.InsertSeparator('-');
  table.InsertValue("K", "b");
  table.InsertValue("V", "2");
  table.PopBack();
  EXPECT_EQ(table.RowCount(), 1);
  table.PrintTable(0, true);
  // The separator stays, now closing the table.
  EXPECT_EQ(out.Take(), "\nK    V\n" + Dashes(9) + "\na    1\n" + Dashes(10) + "\n");
  ReportTable empty;
  empty.AddItem("K", true);
  empty.PopBack();
  EXPECT_EQ(empty.RowCount(), 0);
}

TEST(ReportTable, TextHelpers) {
  ReportTable table;
  EXPECT_EQ(table.FormatValue(6, "ab", ReportTable::kLeft), "ab    ");
  EXPECT_EQ(table.FormatValue(7, "ab", ReportTable::kCenter), "  ab   ");
  EXPECT_EQ(table.FormatValue(6, "ab", ReportTable::kRight), "    ab");
  EXPECT_EQ(table.FormatValue(3, "abcdef", ReportTable::kRight), "abc");
  EXPECT_EQ(ReportTable::RemoveTrailingWhitespace("   "), "");
  EXPECT_EQ(ReportTable::RemoveTrailingWhitespace(""), "");
  EXPECT_EQ(ReportTable::RemoveTrailingWhitespace(" a \t  "), " a \t");
  EXPECT_EQ(ReportTable::Float2Str(1.5f, 0), "2");
  EXPECT_EQ(ReportTable::Float2Str(0.1f, 9), "0.100000001");
  EXPECT_EQ(ReportTable::Double2Str(-2.25, 1), "-2.2");
  // The conversion buffer holds 31 characters.
  EXPECT_EQ(ReportTable::Double2Str(1e30, 6), "1000000000000000019884624838656");
}

}  // namespace
