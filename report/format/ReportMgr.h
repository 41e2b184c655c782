// The text table most reports print through, and the small helpers that
// several reports share: the current-design check, the banner and the pin
// capacitance pair.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace cdm {
class Pin;
}

class ReportTable {
 public:
  // Kept per column for FormatValue's sake; printing is always left-aligned.
  enum Alignment { kLeft = 0, kCenter = 1, kRight = 2 };

  using Column = std::pair<std::string, std::string>;  // (name, group)

  std::string title;

  void AddItem(const std::string& name, bool key, const std::string& group = "",
               Alignment alignment = kLeft, int width = 0);

  void InsertValue(const std::string& name, const std::string& value,
                   const std::string& group = "");
  void InsertValue(const int& index, const std::string& value);
  void InsertValue(const std::string& name, const int& value);
  void InsertValue(const std::string& name, const float& value, int digits,
                   const std::string& group = "");
  void InsertValue(const std::string& name, const double& value, int digits,
                   const std::string& group = "");

  void InsertSeparator(const char& fill);
  void PopBack();
  void PrintTable(const int& indent, bool print_if_empty);

  std::string FormatValue(unsigned long width, const std::string& text, Alignment alignment) const;
  static std::string RemoveTrailingWhitespace(const std::string& text);
  static std::string Float2Str(float value, int digits);
  static std::string Double2Str(double value, int digits);
  // Local time, "%a %b %d %H:%M:%S %Y".
  std::string GetData() const;

  // Plain accessors, for the reports and the tests.
  const std::string& KeyColumn() const { return key_column_; }
  int RowCount() const { return row_count_; }
  const std::vector<Column>& Columns() const { return columns_; }
  // -1 for an unknown column.
  int ColumnWidth(const std::string& name, const std::string& group = "") const;

 private:
  struct GroupLayout {
    std::string label;
    int offset;
    int span;
  };
  std::vector<GroupLayout> LayoutGroups(int& total);

  std::string key_column_;
  int row_count_ = 0;
  std::map<int, char> separators_;
  std::vector<Column> columns_;
  std::map<Column, int> column_index_;
  std::map<Column, int> column_width_;
  std::map<Column, Alignment> column_alignment_;
  std::map<Column, std::vector<std::string>> column_values_;
  std::map<std::string, std::vector<std::string>> groups_;
};

// True when a current design exists; otherwise says so and returns false.
bool PreReport();

// The six-line banner of the host's own reports.
void ReportHeader(const std::string& report, const std::string& design);

// Appends the pin's rise and fall capacitance (max), in that order.
void PinCap(const cdm::Pin* pin, std::vector<float>& caps);

// Local time, "%a %b %e %T %Y": the day of the month padded with a blank.
std::string GetTime();
std::string GetTimeHier();
