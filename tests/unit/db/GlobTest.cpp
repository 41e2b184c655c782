#include <gtest/gtest.h>

#include "db/Glob.h"

namespace {

TEST(Glob, StarAndQuestionMark) {
  EXPECT_TRUE(cdm::GlobMatch("U*", "U12"));
  EXPECT_TRUE(cdm::GlobMatch("U*", "U"));
  EXPECT_FALSE(cdm::GlobMatch("U*", "xU1"));
  EXPECT_TRUE(cdm::GlobMatch("*/A", "u_core/U1/A"));
  EXPECT_TRUE(cdm::GlobMatch("U?", "U1"));
  EXPECT_FALSE(cdm::GlobMatch("U?", "U12"));
  EXPECT_TRUE(cdm::GlobMatch("*a*b*", "xxaYYbZZ"));
  EXPECT_FALSE(cdm::GlobMatch("*a*b", "xxaYYbZZ"));
  EXPECT_TRUE(cdm::GlobMatch("*", ""));
  EXPECT_FALSE(cdm::GlobMatch("", "a"));
}

TEST(Glob, WithinLevelWildcardsStopAtSlash) {
  EXPECT_TRUE(cdm::GlobMatch("u_core/*", "u_core/u_alu/U1"));
  EXPECT_FALSE(cdm::GlobMatch("u_core/*", "u_core/u_alu/U1", true));
  EXPECT_TRUE(cdm::GlobMatch("u_core/*", "u_core/U1", true));
  EXPECT_TRUE(cdm::GlobMatch("*/*/U1", "a/b/U1", true));
  EXPECT_FALSE(cdm::GlobMatch("a?b", "a/b", true));
  EXPECT_TRUE(cdm::GlobMatch("a?b", "a/b"));
}

TEST(Glob, BracketsAreLiteral) {
  EXPECT_TRUE(cdm::GlobMatch("data[3]", "data[3]"));
  EXPECT_FALSE(cdm::GlobMatch("data[3]", "data3"));
  EXPECT_TRUE(cdm::GlobMatch("data[*]", "data[12]"));
  EXPECT_TRUE(cdm::HasWildcard("a*"));
  EXPECT_FALSE(cdm::HasWildcard("data[3]"));
}

}  // namespace
