// Where report text goes. Standard output by default; the shell's redirect
// pushes a sink and pops it again, also when the redirected script fails.
#pragma once

#include <functional>
#include <string_view>

namespace msg {

using ResultSink = std::function<void(std::string_view text)>;

// Text written from now on goes to `sink` until the matching PopResultSink.
void PushResultSink(ResultSink sink);
void PopResultSink();

// Writes raw text to the current sink (standard output when none is pushed).
void WriteResult(std::string_view text);
// The same without first flushing Tcl's standard output: for text that
// comes from that channel itself.
void WriteText(std::string_view text);
// Standard output itself, whatever sink is pushed.
void WriteScreen(std::string_view text);

}  // namespace msg
