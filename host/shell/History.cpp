#include "shell/History.h"

#include <cstdlib>
#include <fstream>

namespace shell {

std::string HistoryPath() {
  const char* home = std::getenv("HOME");
  return std::string(home && *home ? home : ".") + "/.kelvo_history";
}

void History::Load(const std::string& path) {
  path_ = path;
  lines_.clear();
  std::ifstream file(path);
  std::string line;
  while (std::getline(file, line))
    if (!line.empty()) lines_.push_back(line);
  lines_in_file_ = lines_.size();
  if (lines_.size() > kKept) lines_.erase(lines_.begin(), lines_.end() - kKept);
}

void History::Add(const std::string& line) {
  if (line.empty() || line.find_first_not_of(" \t") == std::string::npos) return;
  if (!lines_.empty() && lines_.back() == line) return;
  lines_.push_back(line);
  if (lines_.size() > kKept) lines_.erase(lines_.begin());
  if (path_.empty()) return;
  std::ofstream file(path_, std::ios::app);
  file << line << '\n';
  ++lines_in_file_;
}

void History::Trim() {
  if (path_.empty() || lines_in_file_ <= 2 * kKept) return;
  std::ofstream file(path_, std::ios::trunc);
  for (const std::string& line : lines_) file << line << '\n';
  lines_in_file_ = lines_.size();
}

long History::FindBackward(const std::string& text, long before) const {
  for (long i = std::min<long>(before, static_cast<long>(lines_.size())) - 1; i >= 0; --i)
    if (lines_[static_cast<size_t>(i)].find(text) != std::string::npos) return i;
  return -1;
}

}  // namespace shell
