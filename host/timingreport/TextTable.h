// A plain table of the timing reports: a heading, a line of dashes as wide
// as the table, and rows; each column as wide as its longest entry, columns
// two blanks apart, text left-aligned and numbers right-aligned.
#pragma once

#include <string>
#include <vector>

namespace sta {

class TextTable {
 public:
  // `right[c]`: column c is right-aligned.
  TextTable(std::vector<std::string> heading, std::vector<bool> right);
  void Add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }
  void Print() const;

 private:
  std::string Line(const std::vector<std::string>& cells, const std::vector<size_t>& width) const;

  std::vector<std::string> heading_;
  std::vector<bool> right_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace sta
