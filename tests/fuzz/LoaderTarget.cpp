#include <sys/mman.h>
#include <unistd.h>

#include <string>

#include "FuzzTargets.h"
#include "io/FileLoader.h"

namespace fuzz {

std::string FuzzLoader(std::string_view input) {
  // The bytes as a file of their own, in memory.
  const int fd = memfd_create("fuzz_input", MFD_CLOEXEC);
  if (fd < 0) return std::string();
  size_t written = 0;
  while (written < input.size()) {
    const ssize_t got = write(fd, input.data() + written, input.size() - written);
    if (got <= 0) break;
    written += static_cast<size_t>(got);
  }
  const std::string path = "/proc/self/fd/" + std::to_string(fd);
  std::string text, error;
  io::LoadOptions options;
  options.max_bytes = 1 << 24;
  const bool ok = io::LoadFile(path, text, error, options);
  close(fd);
  const bool gzip = input.size() >= 2 && static_cast<unsigned char>(input[0]) == 0x1f &&
                    static_cast<unsigned char>(input[1]) == 0x8b;
  if (!ok) {
    if (error.find(path) == std::string::npos) return "a message without the file: " + error;
    if (!text.empty()) return "text left behind a failed read";
    if (!gzip && input.find('\0') == std::string_view::npos) return "plain text refused: " + error;
    return std::string();
  }
  if (text.find('\0') != std::string::npos) return "a NUL byte passed";
  if (!gzip && text != input) return "plain text changed on the way";
  return std::string();
}

}  // namespace fuzz
