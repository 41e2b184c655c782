// The whole content of a file, bytes as they are ("" when it cannot be read).
#pragma once

#include <fstream>
#include <sstream>
#include <string>

namespace testsupport {

inline std::string FileText(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

}  // namespace testsupport
