// Loads a Liberty file, plain or gzip-compressed, into memory in one piece.
#include <zlib.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "liberty/LibertyTree.h"

namespace liberty {

bool ReadFileToBuffer(const std::string& path, std::string& buffer, std::string& error) {
  // gzopen reads plain files unchanged, so one path serves both forms.
  FILE* probe = std::fopen(path.c_str(), "rb");
  if (!probe) {
    error = "cannot open '" + path + "': " + std::strerror(errno);
    return false;
  }
  // A plain file is read in one piece; gzopen would copy it through a
  // window.
  unsigned char magic[2] = {0, 0};
  const size_t magic_len = std::fread(magic, 1, 2, probe);
  if (!(magic_len == 2 && magic[0] == 0x1f && magic[1] == 0x8b)) {
    std::fseek(probe, 0, SEEK_END);
    const long size = std::ftell(probe);
    std::fseek(probe, 0, SEEK_SET);
    buffer.resize(size > 0 ? static_cast<size_t>(size) : 0);
    const size_t got = buffer.empty() ? 0 : std::fread(&buffer[0], 1, buffer.size(), probe);
    const bool failed = size < 0 || got != buffer.size() || std::ferror(probe);
    std::fclose(probe);
    if (failed) {
      error = "cannot read '" + path + "'";
      return false;
    }
    if (buffer.find('\0') != std::string::npos) {
      error = "'" + path + "' is not a text file";
      return false;
    }
    return true;
  }
  std::fclose(probe);
  gzFile file = gzopen(path.c_str(), "rb");
  if (!file) {
    error = "cannot open '" + path + "'";
    return false;
  }
  gzbuffer(file, 1 << 18);
  buffer.clear();
  size_t used = 0;
  size_t capacity = 1 << 20;
  for (;;) {
    buffer.resize(capacity);
    const size_t want = capacity - used;
    const int got =
        gzread(file, &buffer[used], static_cast<unsigned>(want > (1u << 30) ? (1u << 30) : want));
    if (got < 0) {
      int code = 0;
      const char* message = gzerror(file, &code);
      error = "cannot read '" + path + "': " + (message ? message : "read error");
      gzclose(file);
      return false;
    }
    used += static_cast<size_t>(got);
    if (got == 0) break;
    if (used == capacity) capacity *= 2;
  }
  buffer.resize(used);
  gzclose(file);
  if (buffer.find('\0') != std::string::npos) {
    error = "'" + path + "' is not a text file";
    return false;
  }
  return true;
}

}  // namespace liberty
