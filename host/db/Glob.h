// Glob patterns of the get_* commands: "*" any text, "?" any one
// character; everything else, brackets included, stands for itself, so
// that "data[3]" names the bus bit.
#pragma once

#include <string_view>

namespace cdm {

bool GlobMatch(std::string_view pattern, std::string_view text);
bool HasWildcard(std::string_view pattern);

}  // namespace cdm
