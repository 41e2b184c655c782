// Tab completion at the prompt, worked out from the line alone: command
// names, the options of the command being typed, file names after the read
// commands (and after > or >>), variable names after $, and the names of
// the current design's objects. Nothing of the line is ever run: names come
// from the command table, the interpreter's list of commands and variables,
// the file system and the database.
#pragma once

#include <tcl.h>

#include <string>
#include <vector>

namespace shell {

struct Completion {
  size_t start = 0;                     // where the word being completed begins
  std::vector<std::string> candidates;  // whole words that may replace it, sorted
  bool file_names = false;              // a folder ends in '/' and takes no blank after it
};

class Completer {
 public:
  explicit Completer(Tcl_Interp* interp) : interp_(interp) {}
  // Completes the word that ends at `cursor`.
  Completion Complete(const std::string& line, size_t cursor) const;

  // The longest start that all candidates share.
  static std::string CommonPrefix(const std::vector<std::string>& candidates);

 private:
  Tcl_Interp* interp_;
};

}  // namespace shell
