// Texts fit for a message: quoted tokens cut short, and every byte sequence
// made into valid UTF-8 without NUL before Tcl sees it.
#include <gtest/gtest.h>

#include <string>

#include "msg/SafeText.h"

namespace {

TEST(SafeText, ExcerptCutsLongTokensAtACharacterBoundary) {
  EXPECT_EQ(msg::Excerpt(std::string(80, 'a')), std::string(80, 'a'));
  EXPECT_EQ(msg::Excerpt(std::string(81, 'a')), std::string(60, 'a') + "... (81 bytes)");
  // "é" is two bytes; the cut never splits it.
  std::string accents;
  for (int i = 0; i < 50; ++i) accents += "\xc3\xa9";
  EXPECT_EQ(msg::Excerpt(accents), accents.substr(0, 60) + "... (100 bytes)");
  EXPECT_EQ(msg::Excerpt("x" + accents), "x" + accents.substr(0, 58) + "... (101 bytes)");
}

TEST(SafeText, CutQuotesShortensOnlyLongQuotedParts) {
  const std::string big(1000, 'z');
  EXPECT_EQ(msg::CutQuotes("expected ';' after 'area', found '" + big + "'"),
            "expected ';' after 'area', found '" + std::string(60, 'z') + "... (1000 bytes)'");
  EXPECT_EQ(msg::CutQuotes("in function \"" + big + "\" here"),
            "in function \"" + std::string(60, 'z') + "... (1000 bytes)\" here");
  // A quote that never closes runs to the end; an apostrophe inside a word
  // opens nothing.
  EXPECT_EQ(msg::CutQuotes("found '" + big), "found '" + std::string(60, 'z') + "... (1000 bytes)");
  const std::string prose = "the cell's " + big + " is fine";
  EXPECT_EQ(msg::CutQuotes(prose), prose);
  EXPECT_EQ(msg::CutQuotes("found '''"), "found '''");
  // Quotes inside a token close nothing: the quote that closes is followed by
  // the end, a blank or punctuation.
  std::string odd;
  for (int i = 0; i < 200; ++i) odd += "a''b\xff";
  EXPECT_EQ(msg::CutQuotes("unexpected '" + odd + "' in the definitions"),
            "unexpected '" + odd.substr(0, 60) + "... (1000 bytes)' in the definitions");
  // Whatever the quotes, the message stays within 8 quoted parts' worth.
  std::string quotes;
  for (int i = 0; i < 200; ++i) quotes += "z' '";
  EXPECT_EQ(msg::CutQuotes("found '" + quotes + "'"),
            "found '" + quotes.substr(0, 613) + "... (808 bytes)");
  // A reader that quotes names allows longer ones.
  EXPECT_EQ(msg::CutQuotes("no cell '" + big + "'", 1000), "no cell '" + big + "'");
  EXPECT_EQ(msg::CutQuotes("no cell '" + big + "z'", 1000),
            "no cell '" + std::string(980, 'z') + "... (1001 bytes)'");
}

TEST(SafeText, ValidTextEscapesWhatIsNotUtf8AndNul) {
  EXPECT_EQ(msg::ValidText("plain \xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80 \t\n"),
            "plain \xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80 \t\n");
  EXPECT_EQ(msg::ValidText(std::string("a\0b", 3)), "a\\x00b");
  EXPECT_EQ(msg::ValidText("w\xff\xfe"), "w\\xff\\xfe");
  EXPECT_EQ(msg::ValidText("cut \xe2\x82"), "cut \\xe2\\x82");            // a character cut short
  EXPECT_EQ(msg::ValidText("\xc0\x80"), "\\xc0\\x80");                    // an overlong NUL
  EXPECT_EQ(msg::ValidText("\xed\xa0\x80"), "\\xed\\xa0\\x80");           // a surrogate
  EXPECT_EQ(msg::ValidText("\xf4\x90\x80\x80"), "\\xf4\\x90\\x80\\x80");  // beyond U+10FFFF
  EXPECT_EQ(msg::ValidText("\x80x"), "\\x80x");                           // a stray continuation
}

}  // namespace
