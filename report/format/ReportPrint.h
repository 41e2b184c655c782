// A second text table, addressed by column position, with centred group
// names over batches of columns. It clears itself once printed.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace report {

extern const char* const SPACE;
extern const char* const HYPHEN;

class ReportPrint {
 public:
  // Declares one column per title under `group`; a `key_column` of 0 or
  // more names the column whose cells open rows.
  void AddItem(const std::vector<std::string>& titles, int key_column, const std::string& group);
  // Stores a cell; with an `offset` of 1 or more the column is first filled
  // with "-" up to `offset` rows before the current one.
  void InsertValue(int column, const std::string& value, int offset);
  // Pads a column to the row count with blanks or with "-".
  void Resize(int column, bool blank);
  // Ahead of the next row: an empty line (true) or a rule (false).
  void InsertSeparator(bool blank);
  void PopBack();
  void PrintGroupName(std::string& line, int& total_width, int indent);
  void PrintTable(int indent, bool print_if_empty);
  void RemoveTrailingWhitespaceAndPrint(std::string& line);
  void Clear();
  // Local time, "%a %b %d %H:%M:%S %Y".
  std::string GetData() const;

  int32_t KeyColumn() const { return key_column_; }
  int32_t RowCount() const { return row_count_; }
  int ColumnCount() const { return static_cast<int>(columns_.size()); }
  int32_t ColumnWidth(int column) const { return column_width_.at(column); }

 private:
  int32_t key_column_ = 0;
  int32_t row_count_ = 0;
  std::unordered_map<int, bool> separators_;
  std::vector<std::pair<std::string, std::string>> columns_;  // (title, group)
  std::vector<int32_t> column_width_;
  std::vector<std::vector<std::string>> column_values_;
  std::vector<std::pair<std::string, std::vector<int32_t>>> groups_;
};

}  // namespace report
