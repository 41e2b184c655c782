// Where the prompt gets its lines: the shell's own line editor, the
// tclreadline package, or plain standard input.
#pragma once

#include <string>

namespace shell {

class LineReader {
 public:
  enum class Outcome {
    kLine,     // a line was entered
    kCleared,  // Ctrl-C at the prompt: the line (and a command begun) is dropped
    kEnd,      // end of input (Ctrl-D on an empty line)
  };
  virtual ~LineReader() = default;
  virtual Outcome Read(const std::string& prompt, std::string& line) = 0;
  // A line entered at the prompt, for the history.
  virtual void Remember(const std::string& line) { (void)line; }
  // Before the shell ends.
  virtual void Finish() {}
};

}  // namespace shell
