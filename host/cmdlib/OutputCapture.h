// Captures the text printed on the result channel (reports, messages, and
// puts where the shell routes it) into a file or a string, for redirect and
// for "command > file". The capture ends when the object goes.
#pragma once

#include <fstream>
#include <string>

namespace cmdlib {

class OutputCapture {
 public:
  // Captures into a string; `tee` also shows the text.
  explicit OutputCapture(bool tee);
  OutputCapture(const OutputCapture&) = delete;
  OutputCapture& operator=(const OutputCapture&) = delete;
  ~OutputCapture();

  // Opens `path` (appending or replacing) before anything runs; false with
  // `error` set when it cannot be written.
  bool OpenFile(const std::string& path, bool append, std::string& error);
  // Ends the capture and writes the file, if any; false when the file
  // could not be written.
  bool Finish();
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
  std::ofstream file_;
  bool active_ = true;
};

}  // namespace cmdlib
