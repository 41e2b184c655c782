#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "verilog/VerilogLexer.h"
#include "verilog/VerilogParser.h"

namespace verilog {
namespace {

// Tokens are views into the text: keep every text alive for the test run.
std::vector<Token> Lex(const std::string& text) {
  static std::deque<std::string> texts;
  texts.push_back(text);
  VerilogLexer lexer(texts.back());
  std::vector<Token> tokens;
  for (Token token = lexer.Next(); token.kind != TokenKind::kEnd; token = lexer.Next()) {
    tokens.push_back(token);
    if (token.kind == TokenKind::kError) break;
  }
  return tokens;
}

TEST(VerilogLexer, SkipsCommentsAndDirectivesAndCountsLines) {
  auto tokens = Lex("`timescale 1ns/1ps\n// line\n/* a\n b */ module\n`celldefine\nfoo");
  ASSERT_EQ(tokens.size(), 2u);
  EXPECT_TRUE(tokens[0].IsWord("module"));
  EXPECT_EQ(tokens[0].line, 4u);
  EXPECT_EQ(tokens[1].text, "foo");
  EXPECT_EQ(tokens[1].line, 6u);
}

TEST(VerilogLexer, EscapedIdentifierEndsAtWhiteSpaceAndIsNoKeyword) {
  auto tokens = Lex("\\u_core/U1[3] (\\module )");
  ASSERT_EQ(tokens.size(), 4u);
  EXPECT_EQ(tokens[0].text, "u_core/U1[3]");
  EXPECT_TRUE(tokens[0].escaped);
  EXPECT_TRUE(tokens[1].Is("("));
  EXPECT_EQ(tokens[2].text, "module");
  EXPECT_FALSE(tokens[2].IsWord("module"));
}

TEST(VerilogLexer, NumbersKeepSizeBaseAndDigitsTogether) {
  auto tokens = Lex("4'hF 8 'd 255 'b1 12 1'bx");
  ASSERT_EQ(tokens.size(), 5u);
  EXPECT_EQ(tokens[0].text, "4'hF");
  EXPECT_EQ(tokens[1].text, "8 'd 255");
  EXPECT_EQ(tokens[2].text, "'b1");
  EXPECT_EQ(tokens[3].text, "12");
  EXPECT_EQ(tokens[4].text, "1'bx");
}

TEST(VerilogLexer, AttributeBracketsAreTokensButStarParenIsNot) {
  auto tokens = Lex("(* keep *) (*)");
  ASSERT_GE(tokens.size(), 3u);
  EXPECT_TRUE(tokens[0].Is("(*"));
  EXPECT_TRUE(tokens[2].Is("*)"));
  EXPECT_TRUE(tokens[3].Is("("));
}

TEST(VerilogLexer, ErrorsCarryTheirLine) {
  auto unterminated = Lex("a\nb /* never closed\n\n");
  ASSERT_FALSE(unterminated.empty());
  EXPECT_EQ(unterminated.back().kind, TokenKind::kError);
  EXPECT_EQ(unterminated.back().line, 2u);
  auto macro = Lex("\n`define WIDTH 4\n");
  ASSERT_EQ(macro.size(), 1u);
  EXPECT_EQ(macro[0].kind, TokenKind::kError);
  EXPECT_EQ(macro[0].line, 2u);
  auto number = Lex("4'q1");
  ASSERT_EQ(number.size(), 1u);
  EXPECT_EQ(number[0].kind, TokenKind::kError);
}

TEST(ConstantBits, SizedBasesExtendAndTruncate) {
  std::string bits;
  ASSERT_TRUE(ConstantBits("1'b0", bits));
  EXPECT_EQ(bits, "0");
  ASSERT_TRUE(ConstantBits("4'hF", bits));
  EXPECT_EQ(bits, "1111");
  ASSERT_TRUE(ConstantBits("8'd5", bits));
  EXPECT_EQ(bits, "00000101");
  ASSERT_TRUE(ConstantBits("4'b1", bits));
  EXPECT_EQ(bits, "0001");
  ASSERT_TRUE(ConstantBits("2'hF", bits));
  EXPECT_EQ(bits, "11");
  ASSERT_TRUE(ConstantBits("6'o7_1", bits));
  EXPECT_EQ(bits, "111001");
  ASSERT_TRUE(ConstantBits("8 'd 255", bits));
  EXPECT_EQ(bits, "11111111");
}

TEST(ConstantBits, UnknownAndFloatingDigitsFillTheirWidth) {
  std::string bits;
  ASSERT_TRUE(ConstantBits("1'bx", bits));
  EXPECT_EQ(bits, "x");
  ASSERT_TRUE(ConstantBits("4'bz", bits));
  EXPECT_EQ(bits, "zzzz");
  ASSERT_TRUE(ConstantBits("8'hx1", bits));
  EXPECT_EQ(bits, "xxxx0001");
}

TEST(ConstantBits, UnsizedAndPlainNumbers) {
  std::string bits;
  ASSERT_TRUE(ConstantBits("'b101", bits));
  EXPECT_EQ(bits, "101");
  ASSERT_TRUE(ConstantBits("3", bits));
  EXPECT_EQ(bits.size(), 32u);
  EXPECT_EQ(bits.substr(30), "11");
}

TEST(ConstantBits, RejectsDigitsOutsideTheBase) {
  std::string bits;
  EXPECT_FALSE(ConstantBits("4'b2", bits));
  EXPECT_FALSE(ConstantBits("4'o9", bits));
  EXPECT_FALSE(ConstantBits("0'b1", bits));
  EXPECT_FALSE(ConstantBits("4'dz1", bits));
}

}  // namespace
}  // namespace verilog
