#include "db/Glob.h"

namespace cdm {

bool GlobMatch(std::string_view pattern, std::string_view text, bool within_level) {
  size_t p = 0, t = 0, star = std::string_view::npos, mark = 0;
  while (t < text.size()) {
    bool wild_ok = !within_level || text[t] != '/';
    if (p < pattern.size() && ((pattern[p] == '?' && wild_ok) || pattern[p] == text[t])) {
      ++p;
      ++t;
    } else if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      mark = t;
    } else if (star != std::string_view::npos && (!within_level || text[mark] != '/')) {
      p = star + 1;
      t = ++mark;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

bool HasWildcard(std::string_view pattern) {
  return pattern.find_first_of("*?") != std::string_view::npos;
}

}  // namespace cdm
