#include "verilog/SourceBuffer.h"

#include <zlib.h>

#include <cerrno>
#include <cstring>

namespace verilog {

bool ReadSourceFile(const std::string& path, std::string& text, std::string& error) {
  text.clear();
  gzFile file = gzopen(path.c_str(), "rb");
  if (!file) {
    error =
        "cannot open file '" + path + "'" + (errno ? std::string(": ") + std::strerror(errno) : "");
    return false;
  }
  gzbuffer(file, 1 << 18);
  char chunk[1 << 16];
  for (;;) {
    int got = gzread(file, chunk, sizeof(chunk));
    if (got < 0) {
      int code = 0;
      error = "cannot read file '" + path + "': " + gzerror(file, &code);
      gzclose(file);
      text.clear();
      return false;
    }
    if (got == 0) break;
    text.append(chunk, static_cast<size_t>(got));
  }
  gzclose(file);
  return true;
}

}  // namespace verilog
