// Name patterns: globs with brackets kept literal, within one level of a
// path, without case, and regular expressions.
#include <gtest/gtest.h>

#include "query/NameMatcher.h"

namespace {

using query::MatchOptions;
using query::NameMatcher;

TEST(NameMatcherTest, GlobsMatchAnyTextAndOneCharacterAndKeepBracketsLiteral) {
  EXPECT_TRUE(NameMatcher("U*", {}).Matches("U12"));
  EXPECT_TRUE(NameMatcher("U*", {}).Matches("U"));
  EXPECT_FALSE(NameMatcher("U*", {}).Matches("xU1"));
  EXPECT_TRUE(NameMatcher("U?", {}).Matches("U1"));
  EXPECT_FALSE(NameMatcher("U?", {}).Matches("U12"));
  EXPECT_TRUE(NameMatcher("*a*b*", {}).Matches("xxaYYbZZ"));
  EXPECT_FALSE(NameMatcher("*a*b", {}).Matches("xxaYYbZZ"));
  EXPECT_TRUE(NameMatcher("data[3]", {}).Matches("data[3]"));
  EXPECT_FALSE(NameMatcher("data[3]", {}).Matches("data3"));
  EXPECT_TRUE(NameMatcher("data[*]", {}).Matches("data[12]"));
  EXPECT_TRUE(NameMatcher("*", {}).Matches(""));
}

TEST(NameMatcherTest, WithinALevelWildcardsStopAtSlashes) {
  EXPECT_TRUE(NameMatcher("u1/*", {}, true).Matches("u1/r0"));
  EXPECT_FALSE(NameMatcher("u1/*", {}, true).Matches("u1/sub/r0"));
  EXPECT_TRUE(NameMatcher("u1/*", {}, false).Matches("u1/sub/r0"));
  EXPECT_FALSE(NameMatcher("a?b", {}, true).Matches("a/b"));
  EXPECT_TRUE(NameMatcher("*/*/r0", {}, true).Matches("a/b/r0"));
}

TEST(NameMatcherTest, NocaseAndRegularExpressions) {
  MatchOptions nocase;
  nocase.nocase = true;
  EXPECT_TRUE(NameMatcher("u_*", nocase).Matches("U_Core"));
  EXPECT_FALSE(NameMatcher("u_*", nocase).IsLiteral());
  EXPECT_TRUE(NameMatcher("in1", {}).IsLiteral());
  MatchOptions regexp;
  regexp.regexp = true;
  EXPECT_TRUE(NameMatcher("in[0-9]+", regexp).Matches("in12"));
  EXPECT_FALSE(NameMatcher("in[0-9]+", regexp).Matches("xin12"));  // the whole name
  EXPECT_FALSE(NameMatcher("in", regexp).IsLiteral());
  regexp.nocase = true;
  EXPECT_TRUE(NameMatcher("IN.", regexp).Matches("in1"));
  NameMatcher bad("(", regexp);
  EXPECT_FALSE(bad.Valid());
  EXPECT_FALSE(bad.Matches("("));
}

}  // namespace
