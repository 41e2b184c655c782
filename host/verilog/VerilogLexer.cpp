#include "verilog/VerilogLexer.h"

#include <cstdint>

namespace verilog {
namespace {

// Character classes by table: the lexer asks for every byte of the file.
enum CharClass : uint8_t {
  kIdentStart = 1,
  kIdentChar = 2,
  kBlank = 4,
  kBaseDigit = 8,
  kDigit = 16
};

struct CharTable {
  uint8_t classes[256] = {};
  constexpr CharTable() {
    for (int c = 'a'; c <= 'z'; ++c) classes[c] |= kIdentStart | kIdentChar;
    for (int c = 'A'; c <= 'Z'; ++c) classes[c] |= kIdentStart | kIdentChar;
    for (int c = '0'; c <= '9'; ++c) classes[c] |= kIdentChar | kBaseDigit | kDigit;
    classes[static_cast<int>('_')] |= kIdentStart | kIdentChar | kBaseDigit;
    classes[static_cast<int>('$')] |= kIdentChar;
    for (int c = 'a'; c <= 'f'; ++c) classes[c] |= kBaseDigit;
    for (int c = 'A'; c <= 'F'; ++c) classes[c] |= kBaseDigit;
    for (char c : {'x', 'X', 'z', 'Z', '?'}) classes[static_cast<unsigned char>(c)] |= kBaseDigit;
    for (char c : {' ', '\t', '\r', '\n', '\f', '\v'})
      classes[static_cast<unsigned char>(c)] |= kBlank;
  }
};
constexpr CharTable kChars;

bool Is(char c, CharClass which) {
  return (kChars.classes[static_cast<unsigned char>(c)] & which) != 0;
}
bool IsIdentStart(char c) {
  return Is(c, kIdentStart);
}
bool IsIdentChar(char c) {
  return Is(c, kIdentChar);
}
bool IsBlank(char c) {
  return Is(c, kBlank);
}
bool IsDigitOfBase(char c) {
  return Is(c, kBaseDigit);
}
bool IsDigit(char c) {
  return Is(c, kDigit);
}

}  // namespace

const Token& VerilogLexer::Peek() {
  if (!peeked_) {
    peek_ = Scan();
    peeked_ = true;
  }
  return peek_;
}

Token VerilogLexer::Next() {
  if (peeked_) {
    peeked_ = false;
    return peek_;
  }
  return Scan();
}

bool VerilogLexer::SkipBlanksAndComments(Token& error) {
  const size_t size = buffer_.size();
  while (pos_ < size) {
    char c = buffer_[pos_];
    if (c == '\n') {
      ++line_;
      ++pos_;
    } else if (IsBlank(c)) {
      ++pos_;
    } else if (c == '/' && pos_ + 1 < size && buffer_[pos_ + 1] == '/') {
      while (pos_ < size && buffer_[pos_] != '\n') ++pos_;
    } else if (c == '/' && pos_ + 1 < size && buffer_[pos_ + 1] == '*') {
      uint32_t start_line = line_;
      pos_ += 2;
      while (pos_ + 1 < size && !(buffer_[pos_] == '*' && buffer_[pos_ + 1] == '/')) {
        if (buffer_[pos_] == '\n') ++line_;
        ++pos_;
      }
      if (pos_ + 1 >= size) {
        error = Token{TokenKind::kError, false, "unterminated comment", start_line};
        pos_ = size;
        return false;
      }
      pos_ += 2;
    } else if (c == '`') {
      // Compiler directives (`timescale, `celldefine, ...) carry nothing a
      // netlist needs; a `define would, and is refused by the parser.
      size_t start = pos_;
      ++pos_;
      while (pos_ < size && IsIdentChar(buffer_[pos_])) ++pos_;
      std::string_view word = buffer_.substr(start + 1, pos_ - start - 1);
      if (word == "define" || word == "include" || word == "ifdef" || word == "ifndef") {
        error = Token{TokenKind::kError, false,
                      "unsupported compiler directive (macros and includes)", line_};
        return false;
      }
      while (pos_ < size && buffer_[pos_] != '\n') ++pos_;
    } else {
      return true;
    }
  }
  return true;
}

Token VerilogLexer::ScanNumber(size_t start) {
  const size_t size = buffer_.size();
  // Size (decimal digits) or nothing, then maybe ' base digits.
  while (pos_ < size && (IsDigit(buffer_[pos_]) || buffer_[pos_] == '_')) ++pos_;
  size_t save = pos_;
  uint32_t save_line = line_;
  while (pos_ < size && IsBlank(buffer_[pos_])) {
    if (buffer_[pos_] == '\n') ++line_;
    ++pos_;
  }
  if (pos_ < size && buffer_[pos_] == '\'') {
    ++pos_;
    if (pos_ < size && (buffer_[pos_] == 's' || buffer_[pos_] == 'S')) ++pos_;
    if (pos_ >= size || std::string_view("bBoOdDhH").find(buffer_[pos_]) == std::string_view::npos)
      return Token{TokenKind::kError, false, "malformed number", line_};
    ++pos_;
    while (pos_ < size && IsBlank(buffer_[pos_])) {
      if (buffer_[pos_] == '\n') ++line_;
      ++pos_;
    }
    size_t digits = pos_;
    while (pos_ < size && IsDigitOfBase(buffer_[pos_])) ++pos_;
    if (pos_ == digits) return Token{TokenKind::kError, false, "malformed number", line_};
  } else {
    pos_ = save;
    line_ = save_line;
  }
  return Token{TokenKind::kNumber, false, buffer_.substr(start, pos_ - start), line_};
}

Token VerilogLexer::Scan() {
  Token error;
  if (!SkipBlanksAndComments(error)) return error;
  const size_t size = buffer_.size();
  if (pos_ >= size) return Token{TokenKind::kEnd, false, {}, line_};
  size_t start = pos_;
  char c = buffer_[pos_];
  if (IsIdentStart(c)) {
    while (pos_ < size && IsIdentChar(buffer_[pos_])) ++pos_;
    return Token{TokenKind::kIdentifier, false, buffer_.substr(start, pos_ - start), line_};
  }
  if (c == '\\') {
    ++pos_;
    while (pos_ < size && !IsBlank(buffer_[pos_])) ++pos_;
    if (pos_ == start + 1)
      return Token{TokenKind::kError, false, "empty escaped identifier", line_};
    return Token{TokenKind::kIdentifier, true, buffer_.substr(start + 1, pos_ - start - 1), line_};
  }
  if (IsDigit(c) || c == '\'') return ScanNumber(start);
  if (c == '"') {
    ++pos_;
    while (pos_ < size && buffer_[pos_] != '"' && buffer_[pos_] != '\n') {
      if (buffer_[pos_] == '\\' && pos_ + 1 < size) ++pos_;
      ++pos_;
    }
    if (pos_ >= size || buffer_[pos_] != '"')
      return Token{TokenKind::kError, false, "unterminated string", line_};
    ++pos_;
    return Token{TokenKind::kString, false, buffer_.substr(start + 1, pos_ - start - 2), line_};
  }
  if (c == '(' && pos_ + 1 < size && buffer_[pos_ + 1] == '*' &&
      !(pos_ + 2 < size && buffer_[pos_ + 2] == ')')) {
    pos_ += 2;
    return Token{TokenKind::kPunct, false, buffer_.substr(start, 2), line_};
  }
  if (c == '*' && pos_ + 1 < size && buffer_[pos_ + 1] == ')') {
    pos_ += 2;
    return Token{TokenKind::kPunct, false, buffer_.substr(start, 2), line_};
  }
  ++pos_;
  return Token{TokenKind::kPunct, false, buffer_.substr(start, 1), line_};
}

}  // namespace verilog
