// First layer of the netlist reader: tokens over a memory buffer. Tokens
// are views into the buffer; comments, `directives and white space vanish.
#pragma once

#include <cstdint>
#include <string_view>

namespace verilog {

enum class TokenKind : uint8_t {
  kEnd,
  kIdentifier,  // also keywords; `escaped` marks \names, never keywords
  kNumber,      // 12, 4'hF, 'b0, 8 'd 255: the whole literal
  kString,      // "text", without the quotes
  kPunct,       // ( ) [ ] { } , ; . : = # (* *) and others, one character
                // except the two attribute brackets
  kError,       // text says what is wrong
};

struct Token {
  TokenKind kind = TokenKind::kEnd;
  bool escaped = false;
  std::string_view text;
  uint32_t line = 0;

  bool Is(std::string_view punct) const { return kind == TokenKind::kPunct && text == punct; }
  bool IsWord(std::string_view word) const {
    return kind == TokenKind::kIdentifier && !escaped && text == word;
  }
};

class VerilogLexer {
 public:
  explicit VerilogLexer(std::string_view buffer) : buffer_(buffer) {}

  // The next token; kEnd at the end, then kEnd again.
  Token Next();
  // The next token without taking it.
  const Token& Peek();
  uint32_t Line() const { return line_; }
  // How far into the buffer the lexer is, of how much.
  size_t Offset() const { return pos_; }
  size_t Size() const { return buffer_.size(); }

 private:
  Token Scan();
  bool SkipBlanksAndComments(Token& error);
  Token ScanNumber(size_t start);

  std::string_view buffer_;
  size_t pos_ = 0;
  uint32_t line_ = 1;
  bool peeked_ = false;
  Token peek_;
};

}  // namespace verilog
