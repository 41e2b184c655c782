// Texts made fit for a message: a quoted token cut to a readable length, and
// any text made valid UTF-8 before it reaches Tcl.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace msg {

// The longest token a message quotes whole.
constexpr size_t kExcerptBytes = 80;

// `text` when it is at most `longest` bytes long; else its first bytes (cut
// at a character boundary), "...", and its length: "AAAA... (140000 bytes)".
std::string Excerpt(std::string_view text, size_t longest = kExcerptBytes);

// `message` with every quoted part ('...' or "...", the quote opening after a
// blank, a bracket or the start) longer than `longest` cut by Excerpt; a
// quote that is never closed runs to the end.
std::string CutQuotes(std::string_view message, size_t longest = kExcerptBytes);

// `text` as valid UTF-8 without NUL bytes, what Tcl needs of a string: each
// byte that is not part of a valid character, and each NUL, is written as
// "\xNN"; all else is kept as it is.
std::string ValidText(std::string_view text);

}  // namespace msg
