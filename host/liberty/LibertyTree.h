// First layer of the Liberty reader: the file as a tree of groups and
// attributes, with line numbers, and no meaning attached yet.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "io/TextBuffer.h"

namespace liberty {

// One value of an attribute: the text (quotes removed) and whether it was
// quoted.
struct LibValue {
  std::string_view text;
  bool quoted = false;
};

// `name : value ;` (simple), `name (v, ...) ;` (complex) or
// `name (v, ...) { ... }` (group).
struct LibStatement {
  enum class Kind : uint8_t { kSimple, kComplex, kGroup };
  Kind kind = Kind::kSimple;
  std::string_view name;
  std::vector<LibValue> values;
  std::vector<LibStatement> children;  // groups only
  uint32_t line = 0;

  bool IsGroup() const { return kind == Kind::kGroup; }
  // The first value's text, empty when there is none.
  std::string_view Value() const { return values.empty() ? std::string_view() : values[0].text; }
};

// The parsed file. Texts point into `buffer` or `owned` (texts rebuilt
// because of line continuations), so the tree keeps both alive.
struct LibTree {
  io::TextBuffer buffer;
  std::deque<std::string> owned;
  LibStatement root;  // the `library` group
};

// Parses `tree.buffer`, already filled. On a syntax error returns false and
// sets `error` to "<file>, line <n>: <what was expected>".
bool ParseLibertyText(LibTree& tree, const std::string& file_name, std::string& error);

}  // namespace liberty
