#include "msg/Progress.h"

#include <unistd.h>

#include <cstdio>

namespace msg {
namespace {

bool enabled = true;

constexpr auto kFirstDraw = std::chrono::milliseconds(500);  // quick work shows nothing
constexpr auto kRedraw = std::chrono::milliseconds(250);

// Straight to the terminal: a progress line is no part of the session's log.
template <class... Args>
void Say(const char* format, Args... args) {
  char line[512];
  int length = std::snprintf(line, sizeof line, format, args...);
  if (length <= 0) return;
  if (length >= static_cast<int>(sizeof line)) length = sizeof line - 1;
  ssize_t wrote = ::write(STDERR_FILENO, line, static_cast<size_t>(length));
  (void)wrote;
}

double Seconds(std::chrono::steady_clock::duration span) {
  return std::chrono::duration<double>(span).count();
}

}  // namespace

void Progress::Enable(bool on) {
  enabled = on;
}

bool Progress::Enabled() {
  return enabled;
}

Progress::Progress(std::string what, uint64_t total)
    : what_(std::move(what)), total_(total ? total : 1) {
  shown_ = enabled && isatty(STDERR_FILENO);
  start_ = last_draw_ = std::chrono::steady_clock::now();
}

Progress::~Progress() {
  if (!drawn_) return;
  Say("\r%s: done, %.1f s\x1b[K\n", what_.c_str(),
      Seconds(std::chrono::steady_clock::now() - start_));
}

void Progress::Draw(uint64_t done) {
  // Look at the clock about every 1/1000 of the work, not on every call.
  next_check_ = done + total_ / 1000 + 1;
  const auto now = std::chrono::steady_clock::now();
  if (now - start_ < kFirstDraw || (drawn_ && now - last_draw_ < kRedraw)) return;
  last_draw_ = now;
  drawn_ = true;
  const double percent = done >= total_ ? 100.0 : 100.0 * static_cast<double>(done) / total_;
  Say("\r%s: %3.0f%%, %.1f s\x1b[K", what_.c_str(), percent, Seconds(now - start_));
}

}  // namespace msg
