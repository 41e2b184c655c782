#include <gtest/gtest.h>

#include "format/ReportPrint.h"
#include "support/CaptureResult.h"

namespace {

using formattest::Blanks;
using formattest::CaptureResult;
using formattest::Dashes;

TEST(ReportPrint, EmptyValuesPrintAsHyphenAndTheRuleIsTheFullWidth) {
  CaptureResult out;
  report::ReportPrint table;
  table.AddItem({"Name", "Value"}, 0, "");
  table.InsertValue(0, "abc", 0);
  table.InsertValue(1, "", 0);
  table.InsertValue(0, "longer_name", 0);
  table.InsertValue(1, "22", 0);
  table.PrintTable(0, true);
  EXPECT_EQ(out.Take(), "\nName" + Blanks(11) + "Value\n" + Dashes(24) + "\nabc" + Blanks(12) +
                            "-\nlonger_name" + Blanks(4) + "22\n" + Dashes(24) + "\n");
}

TEST(ReportPrint, PrintingClearsTheTable) {
  CaptureResult out;
  report::ReportPrint table;
  table.AddItem({"K"}, 0, "");
  table.InsertValue(0, "a", 0);
  table.PrintTable(2, true);
  EXPECT_EQ(out.Take(), "\n  K\n  " + Dashes(5) + "\n  a\n  " + Dashes(5) + "\n");
  EXPECT_EQ(table.ColumnCount(), 0);
  EXPECT_EQ(table.RowCount(), 0);
  table.PrintTable(2, true);
  EXPECT_EQ(out.Take(), "\n");
}

TEST(ReportPrint, OffsetFillsEarlierRowsWithHyphens) {
  CaptureResult out;
  report::ReportPrint table;
  table.AddItem({"K", "V"}, 0, "");
  table.InsertValue(0, "r1", 0);
  table.InsertValue(0, "r2", 0);
  table.InsertValue(0, "r3", 0);
  table.InsertValue(1, "x", 1);
  table.PrintTable(0, true);
  EXPECT_EQ(out.Take(),
            "\nK     V\n" + Dashes(11) + "\nr1    -\nr2    -\nr3    x\n" + Dashes(11) + "\n");
}

TEST(ReportPrint, ResizeWithBlanksOrHyphens) {
  CaptureResult out;
  report::ReportPrint table;
  table.AddItem({"K", "V"}, 0, "");
  table.InsertValue(0, "a", 0);
  table.Resize(1, true);
  table.InsertValue(0, "b", 0);
  table.Resize(1, false);
  table.Resize(7, false);
  table.PrintTable(0, true);
  EXPECT_EQ(out.Take(), "\nK    V\n" + Dashes(10) + "\na\nb    -\n" + Dashes(10) + "\n");
}

TEST(ReportPrint, GroupNameWiderThanItsColumns) {
  CaptureResult out;
  report::ReportPrint table;
  table.AddItem({"a", "b"}, 0, "");
  table.AddItem({"c", "d"}, -1, "Long group name");
  EXPECT_EQ(table.KeyColumn(), 0);
  table.InsertValue(0, "x", 0);
  table.PrintTable(0, true);
  // Span 5 + 5 + 1 - 5 = 6, 9 short: the remainder 0 goes to d, the
  // quotient 9 to c and d; the rule grows by the 9 alone.
  EXPECT_EQ(out.Take(), "\n" + Blanks(10) + "Long group name\na    b    c" + Blanks(13) + "d\n" +
                            Dashes(29) + "\nx    -    -" + Blanks(13) + "-\n" + Dashes(29) + "\n");
}

TEST(ReportPrint, WideningRemainderGoesToTheLastColumnOfTheGroup) {
  CaptureResult out;
  report::ReportPrint table;
  table.AddItem({"K"}, 0, "");
  table.AddItem({"c", "d", "e"}, -1, "Group of sixteen");
  table.AddItem({"z"}, -1, "");
  table.InsertValue(0, "k", 0);
  table.PrintTable(0, true);
  // Span 5 + 5 + 5 + 1 - 5 = 11, 5 short over two gaps: the quotient 2 to
  // c, d and e, the remainder 1 to e alone (c 7, d 7, e 8); the rule grows
  // by the 5: 20 + 5 + 5 for z.
  EXPECT_EQ(out.Take(), "\n" + Blanks(5) + "Group of sixteen\nK    c" + Blanks(6) + "d" +
                            Blanks(6) + "e" + Blanks(7) + "z\n" + Dashes(30) + "\nk    -" +
                            Blanks(6) + "-" + Blanks(6) + "-" + Blanks(7) + "-\n" + Dashes(30) +
                            "\n");
}

TEST(ReportPrint, GroupNamesAreCentredAndSingleColumnGroupsWiden) {
  CaptureResult out;
  report::ReportPrint table;
  table.AddItem({"K"}, 0, "");
  table.AddItem({"Alpha", "Beta"}, -1, "ab");
  table.AddItem({"X"}, -1, "Wide label");
  table.InsertValue(0, "k", 0);
  table.PrintTable(0, true);
  // ab: span 9 + 8 + 4 - 8 = 13, lead 5. Wide label: X grows by 9.
  EXPECT_EQ(out.Take(), "\n" + Blanks(10) + "ab" + Blanks(10) + "Wide label\nK    Alpha" +
                            Blanks(4) + "Beta    X\n" + Dashes(36) + "\nk    -        -       -\n" +
                            Dashes(36) + "\n");
}

TEST(ReportPrint, SeparatorsAndClosing) {
  CaptureResult out;
  report::ReportPrint table;
  table.AddItem({"K"}, 0, "");
  table.InsertValue(0, "a", 0);
  table.InsertSeparator(true);
  table.InsertValue(0, "b", 0);
  table.InsertSeparator(false);
  table.InsertValue(0, "c", 0);
  table.InsertSeparator(true);
  table.PrintTable(0, true);
  EXPECT_EQ(out.Take(), "\nK\n-----\na\n\nb\n-----\nc\n\n");
}

TEST(ReportPrint, EmptyTables) {
  CaptureResult out;
  report::ReportPrint table;
  table.AddItem({"K"}, 0, "");
  table.PrintTable(0, false);
  EXPECT_EQ(out.Take(), "\n");
  table.AddItem({"K"}, 0, "");
  table.InsertSeparator(false);
  table.PrintTable(0, true);
  EXPECT_EQ(out.Take(), "\nK\n-----\n");
}

TEST(ReportPrint, PopBackAndOutOfRangeColumns) {
  CaptureResult out;
  report::ReportPrint table;
  table.AddItem({"K", "V"}, 0, "");
  table.InsertValue(0, "a", 0);
  table.InsertValue(1, "1", 0);
  table.InsertValue(0, "b", 0);
  table.PopBack();
  table.InsertValue(5, "nothing", 0);
  table.InsertValue(-1, "nothing", 0);
  EXPECT_EQ(table.RowCount(), 1);
  table.PrintTable(0, true);
  EXPECT_EQ(out.Take(), "\nK    V\n" + Dashes(10) + "\na    1\n" + Dashes(10) + "\n");
  report::ReportPrint empty;
  empty.PopBack();
  EXPECT_EQ(empty.RowCount(), 0);
}

}  // namespace
