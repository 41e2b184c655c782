// A progress line for long work (reading a large file, linking a large
// design, a timer update over many vertices): percent done and elapsed
// time, redrawn in place on standard error a few times a second. Shown only
// when standard error is an interactive terminal and progress is on
// (app var show_progress); otherwise the calls cost a comparison.
//
//   msg::Progress progress("Reading gcd.v", file_size);
//   ... progress.Update(bytes_done);   // as often as convenient
//   // the line is finished when `progress` goes
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace msg {

class Progress {
 public:
  // `total` is the amount of work in any unit (bytes, instances, levels).
  Progress(std::string what, uint64_t total);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Update(uint64_t done) {
    if (shown_ && done >= next_check_) Draw(done);
  }

  // Whether progress lines are shown at all (the terminal test aside).
  static void Enable(bool on);
  static bool Enabled();

 private:
  void Draw(uint64_t done);

  std::string what_;
  uint64_t total_;
  bool shown_ = false;
  bool drawn_ = false;
  uint64_t next_check_ = 0;
  std::chrono::steady_clock::time_point start_;
  std::chrono::steady_clock::time_point last_draw_;
};

}  // namespace msg
