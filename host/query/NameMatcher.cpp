#include "query/NameMatcher.h"

#include <cctype>

namespace query {
namespace {

bool SameChar(char a, char b, bool nocase) {
  if (!nocase) return a == b;
  return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
}

}  // namespace

bool GlobMatches(std::string_view pattern, std::string_view text, bool within_level, bool nocase) {
  // Iterative matching with one backtrack point for the last "*".
  size_t p = 0, t = 0, star = std::string_view::npos, resume = 0;
  while (t < text.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      resume = t;
    } else if (p < pattern.size() &&
               ((pattern[p] == '?' && !(within_level && text[t] == '/')) ||
                (pattern[p] != '?' && SameChar(pattern[p], text[t], nocase)))) {
      ++p;
      ++t;
    } else if (star != std::string_view::npos && !(within_level && text[resume] == '/')) {
      p = star + 1;
      t = ++resume;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

NameMatcher::NameMatcher(std::string pattern, const MatchOptions& options, bool within_level)
    : pattern_(std::move(pattern)), nocase_(options.nocase), within_level_(within_level) {
  if (options.regexp) {
    auto flags = std::regex::ECMAScript;
    if (options.nocase) flags |= std::regex::icase;
    try {
      regex_ = std::make_unique<std::regex>(pattern_, flags);
    } catch (const std::regex_error& failure) {
      error_ = "bad regular expression '" + pattern_ + "': " + failure.what();
    }
    return;
  }
  literal_ = !nocase_ && pattern_.find_first_of("*?") == std::string::npos;
}

bool NameMatcher::Matches(std::string_view text) const {
  if (regex_) return std::regex_match(text.begin(), text.end(), *regex_);
  if (!error_.empty()) return false;
  return GlobMatches(pattern_, text, within_level_, nocase_);
}

}  // namespace query
