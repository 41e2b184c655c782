// A fuzz input as a file of its own, in memory, for readers that take a path.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <string>
#include <string_view>

namespace fuzz {

// Writes `input` to a new memory file; returns its descriptor (-1 when
// none could be made) and sets `path` to a name that opens it.
inline int InputAsFile(std::string_view input, std::string& path) {
  const int fd = memfd_create("fuzz_input", MFD_CLOEXEC);
  if (fd < 0) return fd;
  size_t written = 0;
  while (written < input.size()) {
    const ssize_t got = write(fd, input.data() + written, input.size() - written);
    if (got <= 0) break;
    written += static_cast<size_t>(got);
  }
  path = "/proc/self/fd/" + std::to_string(fd);
  return fd;
}

}  // namespace fuzz
