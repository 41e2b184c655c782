#include "cmdlib/OutputCapture.h"

#include <cstdio>

#include "cmdlib/TclBinding.h"
#include "msg/ResultChannel.h"

namespace cmdlib {

OutputCapture::OutputCapture(bool tee) {
  FlushOutputs();
  msg::PushResultSink([this, tee](std::string_view text) {
    text_.append(text);
    if (tee) msg::WriteScreen(text);
  });
}

OutputCapture::~OutputCapture() {
  Finish();
}

bool OutputCapture::OpenFile(const std::string& path, bool append, std::string& error) {
  file_.open(path, append ? std::ios::app : std::ios::trunc);
  if (!file_) {
    error = "cannot open '" + path + "' for writing";
    return false;
  }
  return true;
}

bool OutputCapture::Finish() {
  if (!active_) return true;
  active_ = false;
  FlushOutputs();  // puts text still in Tcl's buffer belongs to the capture
  msg::PopResultSink();
  if (!file_.is_open()) return true;
  file_ << text_;
  file_.flush();
  const bool written = static_cast<bool>(file_);
  file_.close();
  return written;
}

}  // namespace cmdlib
