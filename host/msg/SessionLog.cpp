#include "msg/SessionLog.h"

#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace msg {
namespace {

struct Log {
  std::FILE* file = nullptr;
  ~Log() {
    if (file) std::fclose(file);
  }
};

Log& TheLog() {
  static Log log;
  return log;
}

// A stream over a file descriptor that also copies to the log.
ssize_t TeeWrite(void* cookie, const char* buffer, size_t size) {
  const int fd = static_cast<int>(reinterpret_cast<intptr_t>(cookie));
  size_t done = 0;
  while (done < size) {
    ssize_t wrote = ::write(fd, buffer + done, size - done);
    if (wrote < 0) {
      if (errno == EINTR) continue;
      break;  // a closed pipe: the log still gets the text
    }
    done += static_cast<size_t>(wrote);
  }
  LogText(std::string_view(buffer, size));
  return static_cast<ssize_t>(size);
}

std::FILE* TeeStream(int fd) {
  cookie_io_functions_t functions{};
  functions.write = TeeWrite;
  std::FILE* stream =
      fopencookie(reinterpret_cast<void*>(static_cast<intptr_t>(fd)), "w", functions);
  if (stream) setvbuf(stream, nullptr, isatty(fd) || fd == 2 ? _IOLBF : _IOFBF, 1 << 16);
  return stream;
}

}  // namespace

void InstallLogTee() {
  std::fflush(stdout);
  std::fflush(stderr);
  if (std::FILE* out = TeeStream(STDOUT_FILENO)) stdout = out;
  if (std::FILE* err = TeeStream(STDERR_FILENO)) stderr = err;
}

bool OpenLog(const std::string& path, std::string& error) {
  std::FILE* file = std::fopen(path.c_str(), "w");
  if (!file) {
    error = "cannot open '" + path + "' for writing: " + std::strerror(errno);
    return false;
  }
  CloseLog();
  TheLog().file = file;
  return true;
}

void CloseLog() {
  Log& log = TheLog();
  if (log.file) std::fclose(log.file);
  log.file = nullptr;
}

void LogText(std::string_view text) {
  Log& log = TheLog();
  if (!log.file || text.empty()) return;
  std::fwrite(text.data(), 1, text.size(), log.file);
  // Line by line, so that the log holds what was printed even if the
  // session ends abruptly.
  if (text.back() == '\n') std::fflush(log.file);
}

}  // namespace msg
