// The prompt's history: the lines entered, kept in ~/.kelvo_history across
// sessions (the last 1000), for the arrows and Ctrl-R.
#pragma once

#include <string>
#include <vector>

namespace shell {

class History {
 public:
  static constexpr size_t kKept = 1000;

  // Reads the file (a missing file is an empty history).
  void Load(const std::string& path);
  // Adds a line (not an empty one, nor the same as the last) and appends
  // it to the file at once, so that a session that dies keeps it.
  void Add(const std::string& line);
  // Rewrites the file with the last kKept lines when it grew beyond twice that.
  void Trim();

  size_t Size() const { return lines_.size(); }
  const std::string& At(size_t index) const { return lines_[index]; }
  // The newest line before `before` that contains `text`; -1 when none.
  long FindBackward(const std::string& text, long before) const;

 private:
  std::string path_;
  std::vector<std::string> lines_;
  size_t lines_in_file_ = 0;
};

// ~/.kelvo_history (or ./.kelvo_history without HOME).
std::string HistoryPath();

}  // namespace shell
