// The name patterns of the query commands: glob patterns ("*" any text,
// "?" one character; brackets stand for themselves, so "data[3]" names the
// bus bit), or regular expressions with -regexp; -nocase ignores case.
#pragma once

#include <memory>
#include <regex>
#include <string>
#include <string_view>

namespace query {

struct MatchOptions {
  bool regexp = false;
  bool nocase = false;
};

class NameMatcher {
 public:
  // `within_level`: "*" and "?" do not match "/", for patterns over full
  // path names ("u1/*" are the objects right below u1).
  NameMatcher(std::string pattern, const MatchOptions& options, bool within_level = false);

  // False for a regular expression that does not compile; `Error` says why.
  bool Valid() const { return error_.empty(); }
  const std::string& Error() const { return error_; }
  // A plain name: no wildcard, no expression, case kept. Such a pattern
  // can be looked up directly.
  bool IsLiteral() const { return literal_; }
  const std::string& Pattern() const { return pattern_; }

  bool Matches(std::string_view text) const;

 private:
  std::string pattern_;
  bool nocase_;
  bool within_level_;
  bool literal_ = false;
  std::unique_ptr<std::regex> regex_;
  std::string error_;
};

// Glob matching alone; `nocase` compares letters without case.
bool GlobMatches(std::string_view pattern, std::string_view text, bool within_level, bool nocase);

}  // namespace query
