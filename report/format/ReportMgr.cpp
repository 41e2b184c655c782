#include "format/ReportMgr.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <iomanip>
#include <sstream>

#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Selectors.h"
#include "hostapi/msg/Msg.h"

namespace {

// Writes `text` into `line` at `pos`; never past the end of the line, which
// stands for the terminating zero of a fixed buffer.
void PlaceText(std::string& line, size_t pos, const std::string& text) {
  if (pos >= line.size()) return;
  line.replace(pos, std::min(text.size(), line.size() - pos), text, 0,
               std::min(text.size(), line.size() - pos));
}

std::string LocalTimeText(const char* pattern) {
  std::time_t now = std::time(nullptr);
  std::ostringstream out;
  out << std::put_time(std::localtime(&now), pattern);
  return out.str();
}

}  // namespace

void ReportTable::AddItem(const std::string& name, bool key, const std::string& group,
                          Alignment alignment, int width) {
  Column column(name, group);
  if (column_width_.count(column)) return;
  column_index_[column] = static_cast<int>(columns_.size());
  columns_.push_back(column);
  column_width_[column] = std::max(width, static_cast<int>(name.size()) + 4);
  column_alignment_[column] = alignment;
  if (key) key_column_ = name;
  column_values_[column];
  if (!group.empty()) groups_[group].push_back(name);
}

void ReportTable::InsertValue(const std::string& name, const std::string& value,
                              const std::string& group) {
  Column column(name, group);
  auto values = column_values_.find(column);
  if (values == column_values_.end()) return;
  int& width = column_width_[column];
  width = std::max(width, static_cast<int>(value.size()) + 4);
  std::vector<std::string>& cells = values->second;
  if (name == key_column_) {
    cells.push_back(value);
    ++row_count_;
    return;
  }
  int size = static_cast<int>(cells.size());
  if (size == row_count_) {
    cells.push_back(value);  // waits for the row the next key cell opens
  } else if (size < row_count_) {
    cells.resize(row_count_);
    cells[row_count_ - 1] = value;
  }
}

void ReportTable::InsertValue(const int& index, const std::string& value) {
  if (index < 0 || index >= static_cast<int>(columns_.size())) return;
  const Column& column = columns_[index];
  InsertValue(column.first, value, column.second);
}

void ReportTable::InsertValue(const std::string& name, const int& value) {
  InsertValue(name, std::to_string(value), std::string());
}

void ReportTable::InsertValue(const std::string& name, const float& value, int digits,
                              const std::string& group) {
  InsertValue(name, Float2Str(value, digits), group);
}

void ReportTable::InsertValue(const std::string& name, const double& value, int digits,
                              const std::string& group) {
  InsertValue(name, Double2Str(value, digits), group);
}

void ReportTable::InsertSeparator(const char& fill) {
  separators_[row_count_] = fill;
}

void ReportTable::PopBack() {
  for (auto& entry : column_values_) {
    if (static_cast<int>(entry.second.size()) == row_count_ && row_count_ > 0)
      entry.second.pop_back();
  }
  if (row_count_ > 0) --row_count_;
}

int ReportTable::ColumnWidth(const std::string& name, const std::string& group) const {
  auto found = column_width_.find(Column(name, group));
  return found == column_width_.end() ? -1 : found->second;
}

std::vector<ReportTable::GroupLayout> ReportTable::LayoutGroups(int& total) {
  // Groups in order of their leftmost column: widening one moves the next.
  std::map<int, std::string> by_first;
  for (const auto& group : groups_) {
    int first = -1;
    for (const std::string& name : group.second) {
      int index = column_index_[Column(name, group.first)];
      if (first < 0 || index < first) first = index;
    }
    if (first >= 0) by_first[first] = group.first;
  }
  std::vector<GroupLayout> layout;
  for (const auto& entry : by_first) {
    const std::string& label = entry.second;
    int sum = 0;
    int first = -1;
    int last = -1;
    for (const std::string& name : groups_[label]) {
      Column column(name, label);
      int index = column_index_[column];
      sum += column_width_[column];
      if (first < 0 || index < first) first = index;
      if (last < 0 || index > last) last = index;
    }
    const Column& last_column = columns_[last];
    int span = sum - column_width_[last_column] + static_cast<int>(last_column.first.size());
    int label_length = static_cast<int>(label.size());
    if (span < label_length) {
      int extra = label_length - span;
      total += extra;
      if (first < last) {
        int share = extra / (last - first);
        int rest = extra % (last - first);
        for (int i = first; i < last; ++i)
          column_width_[columns_[i]] += share + (i - first < rest ? 1 : 0);
      }
      span = label_length;
    }
    int offset = 0;
    for (int i = 0; i < first; ++i) offset += column_width_[columns_[i]];
    layout.push_back({label, offset, span});
  }
  return layout;
}

void ReportTable::PrintTable(const int& indent, bool print_if_empty) {
  msg::InsertEmptyLine();
  if (row_count_ == 0 && !print_if_empty) return;
  int total = 0;
  for (const Column& column : columns_) {
    column_values_[column].resize(row_count_);
    total += column_width_[column];
  }
  if (!title.empty()) msg::Print_Result("%s", title.c_str());
  std::vector<GroupLayout> layout = LayoutGroups(total);
  // Without columns there is no line to lay out: the title stands alone.
  if (columns_.empty()) return;

  // One line of indent + total characters, its last one the terminator.
  const size_t line_length = static_cast<size_t>(std::max(0, indent) + total - 1);
  const size_t start = static_cast<size_t>(std::max(0, indent));
  std::string line;

  if (!layout.empty()) {
    line.assign(line_length, ' ');
    for (const GroupLayout& group : layout) {
      int lead = (group.span - static_cast<int>(group.label.size())) / 2;
      PlaceText(line, start + group.offset + lead, group.label);
    }
    msg::Print_Result("%s", RemoveTrailingWhitespace(line).c_str());
  }

  line.assign(line_length, ' ');
  size_t pos = start;
  for (const Column& column : columns_) {
    PlaceText(line, pos, column.first);
    pos += column_width_[column];
  }
  msg::Print_Result("%s", RemoveTrailingWhitespace(line).c_str());

  // The rule counts the indent twice: it starts after it and is as long as
  // the heading text including it.
  const std::string rule = std::string(start, ' ') + std::string(line_length, '-');
  msg::Print_Result("%s", rule.c_str());
  if (row_count_ == 0) return;

  auto print_separator = [&](char fill) {
    std::string text = std::string(start, ' ') + std::string(total, fill);
    msg::Print_Result("%s", text.c_str());
  };
  for (int row = 0; row < row_count_; ++row) {
    auto separator = separators_.find(row);
    if (separator != separators_.end()) {
      if (separator->second == ' ')
        msg::InsertEmptyLine();
      else
        print_separator(separator->second);
    }
    line.assign(line_length, ' ');
    pos = start;
    for (const Column& column : columns_) {
      PlaceText(line, pos, column_values_[column][row]);
      pos += column_width_[column];
    }
    msg::Print_Result("%s", RemoveTrailingWhitespace(line).c_str());
  }
  auto closing = separators_.find(row_count_);
  if (closing != separators_.end())
    print_separator(closing->second);
  else
    msg::Print_Result("%s", rule.c_str());
}

std::string ReportTable::FormatValue(unsigned long width, const std::string& text,
                                     Alignment alignment) const {
  if (text.size() >= width) return text.substr(0, width);
  size_t pad = width - text.size();
  if (alignment == kLeft) return text + std::string(pad, ' ');
  if (alignment == kCenter)
    return std::string(pad / 2, ' ') + text + std::string(pad - pad / 2, ' ');
  return std::string(pad, ' ') + text;
}

std::string ReportTable::RemoveTrailingWhitespace(const std::string& text) {
  size_t end = text.find_last_not_of(' ');
  return end == std::string::npos ? std::string() : text.substr(0, end + 1);
}

std::string ReportTable::Float2Str(float value, int digits) {
  return Double2Str(static_cast<double>(value), digits);
}

std::string ReportTable::Double2Str(double value, int digits) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%.*f", digits, value);
  return buffer;
}

std::string ReportTable::GetData() const {
  return LocalTimeText("%a %b %d %H:%M:%S %Y");
}

bool PreReport() {
  if (cdm::DbManager::GetCurrentDesign() != nullptr) return true;
  msg::Print_Result("Current Design is not Define");
  return false;
}

void ReportHeader(const std::string& report, const std::string& design) {
  const char* stars = "****************************************";
  msg::Print_Result("%s", stars);
  msg::Print_Result("Report : %s", report.c_str());
  msg::Print_Result("Design : %s", design.c_str());
  msg::Print_Result("Version: ");
  msg::Print_Result("Date   : %s", ReportTable().GetData().c_str());
  msg::Print_Result("%s", stars);
}

void PinCap(const cdm::Pin* pin, std::vector<float>& caps) {
  caps.push_back(pin->Capacitance(cdm::RiseFall::rise_, cdm::MinMax::max_));
  caps.push_back(pin->Capacitance(cdm::RiseFall::fall_, cdm::MinMax::max_));
}
