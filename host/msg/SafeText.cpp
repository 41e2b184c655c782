#include "msg/SafeText.h"

#include <cstdio>

namespace msg {

namespace {

// The length of the valid UTF-8 character at `text[at]`, 0 when the byte
// starts none (a stray continuation byte, an overlong form, a surrogate, a
// value beyond U+10FFFF, or a character cut short).
size_t CharLength(std::string_view text, size_t at) {
  const auto byte = [&](size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(at);
  if (lead < 0x80) return lead == 0 ? 0 : 1;
  size_t length = 0;
  unsigned char low = 0x80;  // bounds of the second byte
  unsigned char high = 0xbf;
  if (lead >= 0xc2 && lead <= 0xdf) {
    length = 2;
  } else if (lead >= 0xe0 && lead <= 0xef) {
    length = 3;
    if (lead == 0xe0) low = 0xa0;
    if (lead == 0xed) high = 0x9f;
  } else if (lead >= 0xf0 && lead <= 0xf4) {
    length = 4;
    if (lead == 0xf0) low = 0x90;
    if (lead == 0xf4) high = 0x8f;
  } else {
    return 0;
  }
  if (at + length > text.size()) return 0;
  if (byte(at + 1) < low || byte(at + 1) > high) return 0;
  for (size_t i = 2; i < length; ++i) {
    if (byte(at + i) < 0x80 || byte(at + i) > 0xbf) return 0;
  }
  return length;
}

}  // namespace

std::string Excerpt(std::string_view text, size_t longest) {
  if (text.size() <= longest) return std::string(text);
  size_t cut = longest > 20 ? longest - 20 : longest;
  // Back up to the start of a character.
  while (cut > 0 && (static_cast<unsigned char>(text[cut]) & 0xc0) == 0x80) --cut;
  return std::string(text.substr(0, cut)) + "... (" + std::to_string(text.size()) + " bytes)";
}

std::string CutQuotes(std::string_view message, size_t longest) {
  std::string cut;
  bool quoted = false;
  size_t at = 0;
  while (at < message.size()) {
    const char c = message[at];
    const bool opens = (c == '\'' || c == '"') &&
                       (at == 0 || std::string_view(" \t\n([{=,:").find(message[at - 1]) !=
                                       std::string_view::npos);
    if (!opens) {
      cut += c;
      ++at;
      continue;
    }
    // The quote that closes is followed by the end, a blank or punctuation:
    // quotes inside a token (a''b) close nothing.
    size_t close = message.find(c, at + 1);
    while (close != std::string_view::npos && close + 1 < message.size() &&
           std::string_view(" \t\n)]},.;:").find(message[close + 1]) == std::string_view::npos)
      close = message.find(c, close + 1);
    if (close == std::string_view::npos) close = message.size();
    quoted = true;
    cut += c;
    cut += Excerpt(message.substr(at + 1, close - at - 1), longest);
    if (close < message.size()) cut += c;
    at = close + 1;
  }
  // Quotes that a token itself holds can still pair up wrongly: the whole
  // message that quotes stays within eight quoted parts' worth.
  if (quoted && cut.size() > 8 * longest) return Excerpt(cut, 8 * longest);
  return cut;
}

std::string ValidText(std::string_view text) {
  size_t at = 0;
  while (at < text.size()) {
    const size_t length = CharLength(text, at);
    if (length == 0) break;
    at += length;
  }
  if (at == text.size()) return std::string(text);
  std::string valid(text.substr(0, at));
  valid.reserve(text.size() + 16);
  while (at < text.size()) {
    const size_t length = CharLength(text, at);
    if (length > 0) {
      valid.append(text.data() + at, length);
      at += length;
      continue;
    }
    char escaped[8];
    std::snprintf(escaped, sizeof escaped, "\\x%02x", static_cast<unsigned char>(text[at]));
    valid += escaped;
    ++at;
  }
  return valid;
}

}  // namespace msg
