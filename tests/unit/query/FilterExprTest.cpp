// -filter expressions over the cells of a small design: comparisons, glob
// and regular-expression matches, precedence and parentheses, quoted
// values, and the errors of unknown attributes and malformed expressions.
#include <gtest/gtest.h>

#include "query/FilterExpr.h"
#include "support/SdcTestUtil.h"

namespace {

using query::FilterExpr;
using query::MatchOptions;

// BUF (area 2), INV (area 1), DFF (area 6) and AND2 (area 2).
const char* const kDesign = R"(module filter_top (clk, d, q, y);
  input clk, d; output q, y; wire n1;
  BUF u_buf (.A(d), .Z(n1));
  INV u_inv (.A(n1), .Z(y));
  DFF r1 (.D(n1), .CK(clk), .Q(q));
  AND2 u_and (.A(n1), .B(d), .Z());
endmodule)";

class FilterExprTest : public sdctest::SdcTest {
 protected:
  void SetUp() override { LoadOnce(kDesign, "filter_top"); }

  // The cells that pass `text`, in a fixed order, or "error: why".
  static std::string Passing(const std::string& text, const MatchOptions& options = {}) {
    FilterExpr filter(text, options);
    if (!filter.Valid()) return "error: " + filter.Error();
    std::string names, error;
    for (const char* name : {"u_buf", "u_inv", "r1", "u_and"}) {
      const query::ObjectRef ref{query::ObjectKind::kCell, cdm::DbManager::FindCell(name)};
      if (filter.Matches(ref, error)) names += (names.empty() ? "" : " ") + std::string(name);
      if (!error.empty()) return "error: " + error;
    }
    return names;
  }
};

TEST_F(FilterExprTest, ComparisonsTakeNumbersAsNumbersAndTextAsText) {
  EXPECT_EQ(Passing("ref_name == BUF"), "u_buf");
  EXPECT_EQ(Passing("ref_name!=BUF"), "u_inv r1 u_and");
  EXPECT_EQ(Passing("area == 2.0"), "u_buf u_and");
  EXPECT_EQ(Passing("area > 1"), "u_buf r1 u_and");
  EXPECT_EQ(Passing("area <= 2"), "u_buf u_inv u_and");
  EXPECT_EQ(Passing("area >= 6 "), "r1");
  EXPECT_EQ(Passing("ref_name < C"), "u_buf u_and");  // AND2 and BUF come before C
  EXPECT_EQ(Passing("is_sequential"), "r1");
  EXPECT_EQ(Passing("!is_sequential"), "u_buf u_inv u_and");
  MatchOptions nocase;
  nocase.nocase = true;
  EXPECT_EQ(Passing("ref_name == buf", nocase), "u_buf");
  EXPECT_EQ(Passing("ref_name == buf"), "");
}

TEST_F(FilterExprTest, MatchesAreGlobsOrRegularExpressions) {
  EXPECT_EQ(Passing("ref_name =~ *N*"), "u_inv u_and");
  EXPECT_EQ(Passing("full_name !~ u_*"), "r1");
  EXPECT_EQ(Passing("ref_name =~ ?UF"), "u_buf");
  MatchOptions nocase;
  nocase.nocase = true;
  EXPECT_EQ(Passing("ref_name =~ b*", nocase), "u_buf");
  EXPECT_EQ(Passing("ref_name =~ b*"), "");
  MatchOptions regexp;
  regexp.regexp = true;
  EXPECT_EQ(Passing("ref_name =~ {[AB].*}", regexp), "u_buf u_and");
  EXPECT_EQ(Passing("ref_name =~ B*", regexp), "") << "the whole name must match";
  EXPECT_EQ(Passing("ref_name !~ {.*2}", regexp), "u_buf u_inv r1");
  EXPECT_EQ(Passing("ref_name =~ (", regexp)
                .rfind("error: bad filter 'ref_name =~ (': bad regular expression '('", 0),
            0u);
}

TEST_F(FilterExprTest, AndBindsBeforeOrAndParenthesesGroup) {
  EXPECT_EQ(Passing("ref_name == BUF || ref_name == INV && is_sequential"), "u_buf");
  EXPECT_EQ(Passing("is_sequential || ref_name == AND2 && area == 2"), "r1 u_and");
  EXPECT_EQ(Passing("(ref_name == BUF || ref_name == INV) && is_sequential"), "");
  EXPECT_EQ(Passing("(ref_name == BUF || ref_name == INV) && !is_sequential"), "u_buf u_inv");
  EXPECT_EQ(Passing("!(ref_name == BUF || is_sequential)"), "u_inv u_and");
  EXPECT_EQ(Passing("((area==2))&&(ref_name=~A*)"), "u_and");
}

TEST_F(FilterExprTest, QuotedValuesKeepBlanksAndOperators) {
  EXPECT_EQ(Passing("full_name == \"u_buf\""), "u_buf");
  EXPECT_EQ(Passing("ref_name == {INV} || ref_name == \"DFF\""), "u_inv r1");
  EXPECT_EQ(Passing("ref_name == \"A B\""), "");
  EXPECT_EQ(Passing("ref_name != \"x && y || (z\""), "u_buf u_inv r1 u_and");
}

TEST_F(FilterExprTest, UnknownAttributesAreErrorsWhereverTheyStand) {
  EXPECT_EQ(Passing("bogus == 1"), "error: unknown attribute 'bogus' of cell objects");
  EXPECT_EQ(Passing("direction == in"), "error: unknown attribute 'direction' of cell objects");
  // Also behind a side that decides the result alone.
  EXPECT_EQ(Passing("ref_name == NONE && bogus == 1"),
            "error: unknown attribute 'bogus' of cell objects");
  EXPECT_EQ(Passing("area > 0 || bogus"), "error: unknown attribute 'bogus' of cell objects");
}

TEST_F(FilterExprTest, MalformedExpressionsAreErrorsThatSayWhere) {
  const std::vector<std::pair<const char*, const char*>> cases = {
      {"(ref_name == BUF", "missing ')'"},
      {"ref_name == BUF)", "unexpected ')'"},
      {"((is_sequential)", "missing ')'"},
      {"ref_name ==", "expected a value after '=='"},
      {"ref_name == \"BUF", "expected a value after '=='"},
      {"ref_name == BUF &&", "expected an attribute at the end"},
      {"is_sequential ||", "expected an attribute at the end"},
      {"&& is_sequential", "expected an attribute at '&& is_sequential'"},
      {"== BUF", "expected an attribute at '== BUF'"},
      {"()", "expected an attribute at ')'"},
      {"!", "expected an attribute at the end"},
      {"", "expected an attribute at the end"},
      {"is_sequential is_buffer", "unexpected 'is_buffer'"},
  };
  for (const auto& [text, why] : cases)
    EXPECT_EQ(Passing(text), "error: bad filter '" + std::string(text) + "': " + why) << text;
}

}  // namespace
