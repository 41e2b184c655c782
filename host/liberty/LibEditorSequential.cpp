// ff / latch groups and state tables.
#include <cctype>
#include <cstdint>

#include "liberty/LibEditor.h"

namespace cdm {

size_t LibEditor::StatePortsAt(const Statement& st) {
  // ff_bank (IQ, IQN, 4) has a width behind the names; a group with three
  // names and no width, as some generators write, has its state ports last.
  if (st.values.size() == 3) {
    const std::string_view last = st.values[2].text;
    if (!last.empty() && !std::isdigit(static_cast<unsigned char>(last[0]))) return 1;
  }
  return 0;
}

bool LibEditor::SequentialGroup(LibCell* cell, const Statement& st) {
  auto group = std::make_unique<LibSequential>();
  const bool latch = st.name == "latch" || st.name == "latch_bank";
  group->kind = latch ? LibSequential::Kind::kLatch : LibSequential::Kind::kFlipFlop;
  const size_t at = StatePortsAt(st);
  group->first = port_index_.at(st.values[at].text);
  group->second = port_index_.at(st.values[at + 1].text);
  if (at == 0 && st.values.size() >= 3) {
    if (!Integer(st, group->bank_width, 1, kMaxBusWidth, 2)) return false;
  }
  for (const Statement& child : st.children) {
    const std::string_view name = child.name;
    LibBoolFuncExpr* target = nullptr;
    if (name == "clocked_on" || name == "enable") target = &group->clock;
    if (name == "next_state" || name == "data_in") target = &group->data;
    if (name == "clocked_on_also") target = &group->clock_also;
    if (name == "clear") target = &group->clear;
    if (name == "preset") target = &group->preset;
    if (target && !Function(cell, child, *target)) return false;
    if (name == "clear_preset_var1") group->clear_preset_var1 = std::string(child.Value());
    if (name == "clear_preset_var2") group->clear_preset_var2 = std::string(child.Value());
  }
  if (group->data.IsEmpty()) {
    return Fail(st, std::string("expected '") + (latch ? "data_in" : "next_state") + "' in " +
                        std::string(st.name) + " group");
  }
  cell->sequentials_.push_back(std::move(group));
  return true;
}

namespace {

std::vector<std::string> SplitBlank(std::string_view text) {
  std::vector<std::string> words;
  size_t at = 0;
  while (at < text.size()) {
    while (at < text.size() && std::isspace(static_cast<unsigned char>(text[at]))) ++at;
    size_t end = at;
    while (end < text.size() && !std::isspace(static_cast<unsigned char>(text[end]))) ++end;
    if (end > at) words.emplace_back(text.substr(at, end - at));
    at = end;
  }
  return words;
}

bool IsInputSymbol(const std::string& symbol) {
  return symbol == "L" || symbol == "H" || symbol == "-" || symbol == "R" || symbol == "F" ||
         symbol == "~R" || symbol == "~F";
}

bool IsStateSymbol(const std::string& symbol) {
  return symbol == "L" || symbol == "H" || symbol == "-";
}

bool IsNextSymbol(const std::string& symbol) {
  return symbol == "L" || symbol == "H" || symbol == "-" || symbol == "N" || symbol == "X" ||
         symbol == "L/H" || symbol == "H/L";
}

}  // namespace

bool LibEditor::StateTableGroup(LibCell* cell, const Statement& st) {
  if (!NeedValues(st, 2)) return false;
  auto table = std::make_unique<LibStateTable>();
  for (const std::string& name : SplitBlank(st.values[0].text)) {
    auto found = port_index_.find(name);
    if (found == port_index_.end()) return Fail(st, "unknown pin '" + name + "' in statetable");
    table->input_ports.push_back(found->second);
  }
  for (const std::string& name : SplitBlank(st.values[1].text)) {
    table->internal_ports.push_back(AddPort(cell, name, kDirInternal, true));
  }
  const size_t inputs = table->input_ports.size();
  const size_t internals = table->internal_ports.size();
  std::vector<StateTableRows::Line> rows;
  for (const Statement& child : st.children) {
    if (child.name != "table") continue;
    std::string text;
    for (const liberty::LibValue& value : child.values) text += std::string(value.text) + ",";
    size_t at = 0;
    while (at < text.size()) {
      size_t end = text.find(',', at);
      const std::string row_text = text.substr(at, end - at);
      at = end + 1;
      if (SplitBlank(row_text).empty()) continue;
      const size_t colon1 = row_text.find(':');
      const size_t colon2 = colon1 == std::string::npos ? colon1 : row_text.find(':', colon1 + 1);
      if (colon2 == std::string::npos)
        return Fail(child, "expected 'inputs : state : next state' in row \"" + row_text + "\"");
      StateTableRows::Line row{SplitBlank(row_text.substr(0, colon1)),
                               SplitBlank(row_text.substr(colon1 + 1, colon2 - colon1 - 1)),
                               SplitBlank(row_text.substr(colon2 + 1))};
      if (row.inputs.size() != inputs || row.current.size() != internals ||
          row.next.size() != internals) {
        return Fail(child, "expected " + std::to_string(inputs) + " inputs and " +
                               std::to_string(internals) + " state values in row \"" + row_text +
                               "\"");
      }
      for (const std::string& symbol : row.inputs) {
        if (!IsInputSymbol(symbol))
          return Fail(child, "unknown input value '" + symbol + "' in row \"" + row_text + "\"");
      }
      for (size_t k = 0; k < internals; ++k) {
        if (!IsStateSymbol(row.current[k]) || !IsNextSymbol(row.next[k])) {
          return Fail(child, "unknown state value in row \"" + row_text + "\"");
        }
      }
      rows.push_back(std::move(row));
    }
  }
  // Inputs with an edge in some row take two columns; internal ports with a
  // level in some row are read by the table.
  for (const StateTableRows::Line& row : rows) {
    for (size_t i = 0; i < inputs; ++i) {
      const std::string& symbol = row.inputs[i];
      if (symbol == "R" || symbol == "F" || symbol == "~R" || symbol == "~F")
        table->doubled_inputs.insert(static_cast<unsigned>(i));
    }
  }
  std::vector<int> used;
  for (size_t k = 0; k < internals; ++k) {
    for (const StateTableRows::Line& row : rows) {
      if (row.current[k] != "-") {
        used.push_back(static_cast<int>(k));
        break;
      }
    }
  }
  table->SetUsedInternalPortsIndex(used);
  // The rows are made when read: a table of any width costs its lines only.
  table->expanded_rows = StateTableRows(std::move(rows), table->doubled_inputs, inputs, internals);
  cell->state_table_ = std::move(table);
  return true;
}

}  // namespace cdm
