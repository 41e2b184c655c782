#include "format/ReportPrint.h"

#include <algorithm>
#include <ctime>
#include <iomanip>
#include <sstream>

#include "hostapi/msg/Msg.h"

namespace report {

const char* const SPACE = " ";
const char* const HYPHEN = "-";

void ReportPrint::AddItem(const std::vector<std::string>& titles, int key_column,
                          const std::string& group) {
  if (!group.empty()) groups_.emplace_back(group, std::vector<int32_t>());
  for (const std::string& title : titles) {
    if (!group.empty()) groups_.back().second.push_back(static_cast<int32_t>(columns_.size()));
    columns_.emplace_back(title, group);
    column_width_.push_back(static_cast<int32_t>(title.size()) + 4);
    if (key_column >= 0) key_column_ = key_column;
    column_values_.emplace_back();
  }
}

void ReportPrint::InsertValue(int column, const std::string& value, int offset) {
  if (column < 0 || column >= ColumnCount()) return;
  column_width_[column] = std::max(column_width_[column], static_cast<int32_t>(value.size()) + 4);
  if (column == key_column_) ++row_count_;
  std::vector<std::string>& cells = column_values_[column];
  if (offset >= 1) {
    int target = row_count_ - offset;
    if (static_cast<int>(cells.size()) < target) cells.resize(target, HYPHEN);
  }
  cells.push_back(value.empty() ? HYPHEN : value);
}

void ReportPrint::Resize(int column, bool blank) {
  if (column < 0 || column >= ColumnCount()) return;
  std::vector<std::string>& cells = column_values_[column];
  if (static_cast<int>(cells.size()) >= row_count_) return;
  cells.resize(row_count_, blank ? SPACE : HYPHEN);
}

void ReportPrint::InsertSeparator(bool blank) {
  separators_[row_count_] = blank;
}

void ReportPrint::PopBack() {
  if (row_count_ == 0) return;
  for (std::vector<std::string>& cells : column_values_) {
    if (static_cast<int>(cells.size()) == row_count_) cells.pop_back();
  }
  --row_count_;
}

void ReportPrint::PrintGroupName(std::string& line, int& total_width, int indent) {
  for (const auto& group : groups_) {
    const std::string& name = group.first;
    const std::vector<int32_t>& members = group.second;
    if (members.empty()) continue;
    int first = members.front();
    int last = members.back();
    int span = 0;
    for (int32_t column : members) span += column_width_[column];
    span += static_cast<int>(columns_[last].first.size()) - column_width_[last];
    int lead = 0;
    int name_length = static_cast<int>(name.size());
    if (span < name_length) {
      int extra = name_length - span;
      total_width += extra;
      if (first == last) {
        // One column: it alone takes the whole widening.
        column_width_[last] += extra;
      } else {
        int quotient = extra / (last - first);
        column_width_[last] += extra % (last - first);
        for (int32_t column : members) column_width_[column] += quotient;
      }
    } else {
      lead = (span - name_length) / 2;
    }
    int start = indent + lead;
    for (int column = 0; column < first; ++column) start += column_width_[column];
    line.resize(static_cast<size_t>(std::max(0, start)), ' ');
    line += name;
  }
  RemoveTrailingWhitespaceAndPrint(line);
}

void ReportPrint::RemoveTrailingWhitespaceAndPrint(std::string& line) {
  size_t end = line.find_last_not_of(' ');
  if (end != std::string::npos) line.erase(end + 1);
  msg::Print_Result("%s", line.c_str());
}

void ReportPrint::PrintTable(int indent, bool print_if_empty) {
  msg::InsertEmptyLine();
  // A table without columns (also one printed before) has no line to show.
  if ((row_count_ == 0 && !print_if_empty) || columns_.empty()) {
    Clear();
    return;
  }
  int total_width = 0;
  for (int32_t width : column_width_) total_width += width;
  for (std::vector<std::string>& cells : column_values_) cells.resize(row_count_, HYPHEN);
  const std::string margin(static_cast<size_t>(std::max(0, indent)), ' ');
  if (!groups_.empty()) {
    std::string line;
    PrintGroupName(line, total_width, indent);
  }

  auto print_fields = [&](auto text_of) {
    std::string line = margin;
    for (int column = 0; column < ColumnCount(); ++column) {
      std::string text = text_of(column);
      line += text;
      if (static_cast<int>(text.size()) < column_width_[column])
        line.append(column_width_[column] - text.size(), ' ');
    }
    RemoveTrailingWhitespaceAndPrint(line);
  };
  print_fields([&](int column) { return columns_[column].first; });

  const std::string rule = margin + std::string(static_cast<size_t>(std::max(0, total_width)), '-');
  msg::Print_Result("%s", rule.c_str());
  for (int row = 0; row < row_count_; ++row) {
    auto separator = separators_.find(row);
    if (separator != separators_.end()) {
      if (separator->second)
        msg::InsertEmptyLine();
      else
        msg::Print_Result("%s", rule.c_str());
    }
    print_fields([&](int column) { return column_values_[column][row]; });
  }
  // An empty table printed on request keeps only the rule under its titles.
  if (row_count_ > 0) {
    auto closing = separators_.find(row_count_);
    if (closing != separators_.end() && closing->second)
      msg::InsertEmptyLine();
    else
      msg::Print_Result("%s", rule.c_str());
  }
  Clear();
}

void ReportPrint::Clear() {
  key_column_ = 0;
  row_count_ = 0;
  separators_.clear();
  columns_.clear();
  column_width_.clear();
  column_values_.clear();
  groups_.clear();
}

std::string ReportPrint::GetData() const {
  std::time_t now = std::time(nullptr);
  std::ostringstream out;
  out << std::put_time(std::localtime(&now), "%a %b %d %H:%M:%S %Y");
  return out.str();
}

}  // namespace report
