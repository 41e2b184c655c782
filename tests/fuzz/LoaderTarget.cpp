#include <sys/mman.h>
#include <unistd.h>

#include <string>

#include "FuzzInput.h"
#include "FuzzTargets.h"
#include "io/FileLoader.h"

namespace fuzz {

std::string FuzzLoader(std::string_view input) {
  std::string path;
  const int fd = InputAsFile(input, path);
  if (fd < 0) return std::string();
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
