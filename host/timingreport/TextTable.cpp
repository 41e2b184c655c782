#include "timingreport/TextTable.h"

#include <algorithm>

#include "hostapi/msg/Msg.h"
#include "timingreport/ReportNumbers.h"

namespace sta {

TextTable::TextTable(std::vector<std::string> heading, std::vector<bool> right)
    : heading_(std::move(heading)), right_(std::move(right)) {}

std::string TextTable::Line(const std::vector<std::string>& cells,
                            const std::vector<size_t>& width) const {
  std::string line;
  for (size_t c = 0; c < cells.size(); ++c) {
    if (c) line += "  ";
    line += right_[c] ? PadLeft(cells[c], width[c]) : PadRight(cells[c], width[c]);
  }
  while (!line.empty() && line.back() == ' ') line.pop_back();
  return line;
}

void TextTable::Print() const {
  std::vector<size_t> width(heading_.size());
  for (size_t c = 0; c < heading_.size(); ++c) {
    width[c] = heading_[c].size();
    for (const auto& row : rows_) width[c] = std::max(width[c], row[c].size());
  }
  size_t total = 2 * (width.size() - 1);
  for (size_t w : width) total += w;
  msg::Print_Result(Line(heading_, width).c_str());
  msg::Print_Result(std::string(total, '-').c_str());
  for (const auto& row : rows_) msg::Print_Result(Line(row, width).c_str());
}

}  // namespace sta
