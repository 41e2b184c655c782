// Glob patterns of the get_* commands: "*" any text, "?" any one
// character; everything else, brackets included, stands for itself, so
// that "data[3]" names the bus bit.
#pragma once

#include <string_view>

namespace cdm {

// With `within_level`, "*" and "?" do not match "/": for patterns over
// full path names, where "u_core/*" means the cells right below u_core.
bool GlobMatch(std::string_view pattern, std::string_view text, bool within_level = false);
bool HasWildcard(std::string_view pattern);

}  // namespace cdm
