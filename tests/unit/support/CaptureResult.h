// Collects everything printed on the result channel while it lives.
#pragma once

#include <string>

#include "msg/ResultChannel.h"

namespace formattest {

class CaptureResult {
 public:
  CaptureResult() {
    msg::PushResultSink([this](std::string_view text) { text_.append(text); });
  }
  ~CaptureResult() { msg::PopResultSink(); }
  CaptureResult(const CaptureResult&) = delete;
  CaptureResult& operator=(const CaptureResult&) = delete;

  // The text so far, which is then forgotten.
  std::string Take() {
    std::string text;
    text.swap(text_);
    return text;
  }

 private:
  std::string text_;
};

inline std::string Dashes(int n) {
  return std::string(n, '-');
}
inline std::string Blanks(int n) {
  return std::string(n, ' ');
}

}  // namespace formattest
