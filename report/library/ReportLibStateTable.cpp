// State tables of report_lib: per sequential cell its outputs with their
// state functions and, per internal pin, the next-state column of the table.
#include <cstdint>
#include <string>

#include "library/ReportLibSections.h"

namespace {

constexpr int kOutputDirection = 1;

struct OutputsOfCell {
  std::vector<cdm::LibPort*> outputs;
  std::vector<cdm::LibPort*> second_outputs;
  const cdm::LibSequential* group = nullptr;  // only the last lookup counts
};

void CollectFromPort(cdm::LibCell* cell, const cdm::LibStateTable* table, cdm::LibPort* port,
                     OutputsOfCell& found) {
  if (port->GetDirection() != kOutputDirection) return;
  const cdm::LibBoolFuncExpr* function = port->GetStateFunction();
  if (!function) function = port->GetFunction();
  if (!function) return;
  for (cdm::LibPort* function_port : function->GetFuncPorts()) {
    if (table) {
      for (const cdm::LibPort* internal : table->internal_ports) {
        if (internal == function_port) found.outputs.push_back(port);
      }
      continue;
    }
    found.group = cell->GetSequentialFromOutputPort(function_port);
    if (!found.group) continue;
    if (found.group->first == function_port) {
      found.outputs.push_back(port);
    } else if (found.group->second == function_port) {
      found.second_outputs.push_back(port);
    }
  }
}

OutputsOfCell CollectOutputs(cdm::LibCell* cell, const cdm::LibStateTable* table) {
  OutputsOfCell found;
  std::unique_ptr<cdm::Iterator<cdm::LibPort>> buses(cell->LibPortBusIter());
  while (buses->HasNext()) CollectFromPort(cell, table, buses->Next(), found);
  std::unique_ptr<cdm::Iterator<cdm::LibPort>> ports(cell->LibPortIter());
  while (ports->HasNext()) CollectFromPort(cell, table, ports->Next(), found);
  return found;
}

// The input columns, a doubled input with its starred column first.
std::string InputHeading(const cdm::LibStateTable* table) {
  std::string text;
  for (size_t i = 0; i < table->input_ports.size(); ++i) {
    const std::string& name = table->input_ports[i]->Name();
    if (table->doubled_inputs.count(static_cast<unsigned>(i))) text += name + "*, ";
    text += name + ", ";
  }
  if (text.size() >= 2) text.resize(text.size() - 2);
  return text;
}

std::string UsedInternalHeading(const cdm::LibStateTable* table, const std::vector<int>& used) {
  std::string text;
  for (int index : used) text += table->internal_ports.at(index)->Name() + "*, ";
  if (text.size() >= 2) text.resize(text.size() - 2);
  return text;
}

void PrintStateTablePart(std::ostream& os, const cdm::LibStateTable* table,
                         const std::vector<cdm::LibPort*>& outputs, bool full) {
  for (cdm::LibPort* port : outputs) {
    os << "  PIN(" << port->Name() << "):\n"
       << "    STATE_FUNCTION: (";
    std::string names;
    if (const cdm::LibBoolFuncExpr* state = port->GetStateFunction()) {
      for (const cdm::LibPort* function_port : state->GetFuncPorts()) {
        if (!names.empty()) names += " ";
        names += function_port->Name();
      }
    }
    os << names << ")\n"
       << "  END_PIN " << port->Name() << ";\n\n";
  }
  for (size_t pin = 0; pin < table->internal_ports.size(); ++pin) {
    if (!PrintInternalPinTable(os, table, pin, full)) return;
  }
}

}  // namespace

bool PrintInternalPinTable(std::ostream& os, const cdm::LibStateTable* table, size_t pin,
                           bool full) {
  const std::vector<int> used = table->GetUsedInternalPortsIndex();
  std::string heading = InputHeading(table);
  if (!used.empty()) heading += ", " + UsedInternalHeading(table, used);
  const size_t inputs = table->input_ports.size() + table->doubled_inputs.size();
  const uint32_t internals = static_cast<uint32_t>(table->internal_ports.size());
  os << "  INTERNAL PIN(" << table->internal_ports[pin]->Name() << "): " << heading << "\n";
  // From 32 input columns on, the patterns hold values beyond a signed 32-bit
  // integer, whose conversion ends the command. The report is printed only
  // at its end, so it makes no difference which pattern fails: the highest
  // one is converted first, rather than a list of 2^32 patterns made.
  if (inputs >= 32) std::stoi(std::string(inputs, '1'), nullptr, 2);
  const std::vector<std::string> input_patterns =
      smartFullPermutation(static_cast<int>(inputs), true);
  const std::vector<std::string> internal_patterns =
      smartFullPermutation(static_cast<int>(used.size()), false);
  os << "    TABLE: ";
  if (full) os << "\n";
  std::string packed;
  const uint64_t rows = table->expanded_rows.size();
  // The running sum of the index (below) passes the last row when the table
  // reads two or more of its internal pins: the table of the cell ends there.
  auto past_the_rows = [&](uint32_t index) {
    if (index < rows) return false;
    if (!full) os << std::string(packed.rbegin(), packed.rend()) << "\n";
    os << "  TABLE ENDS: row " << index << " is beyond the " << rows
       << " rows of the state table\n";
    return true;
  };
  for (const std::string& input : input_patterns) {
    uint32_t index = static_cast<uint32_t>(std::stoi(input, nullptr, 2)) << (internals % 32);
    if (used.empty()) {
      if (past_the_rows(index)) return false;
      const std::string cell = table->expanded_rows[index].at(pin);
      if (full) {
        os << "    " << input << "    " << cell << "\n";
      } else {
        packed += cell;
      }
      continue;
    }
    // The index keeps what earlier internal patterns added to it.
    for (const std::string& internal : internal_patterns) {
      for (size_t j = 0; j < used.size() && j < internal.size(); ++j) {
        if (internal[j] == 'H') index += uint32_t{1} << ((internals - 1 - used[j]) % 32);
      }
      if (past_the_rows(index)) return false;
      const std::string cell = table->expanded_rows[index].at(pin);
      if (full) {
        os << "    " << input << " :" << internal << ":    " << cell << "\n";
      } else {
        packed += cell;
      }
    }
  }
  if (!full) os << std::string(packed.rbegin(), packed.rend()) << "\n";
  os << "  END_PIN " << table->internal_ports[pin]->Name() << ";\n";
  return true;
}

void PrintCellStateTable(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names,
                         bool full) {
  os << "\nState table descriptions:\n\n";
  WalkLibCells(lib, names, [&os, lib, full](cdm::LibCell* cell) {
    PrintOneCellStateTable(os, lib, cell, full);
  });
}

void PrintOneCellStateTable(std::ostream& os, cdm::LibertyLib* /*lib*/, cdm::LibCell* cell,
                            bool full) {
  const cdm::LibStateTable* table = cell->GetStateTable();
  OutputsOfCell found = CollectOutputs(cell, table);
  if (!table && !found.group) return;
  os << "CELL(" << cell->Name() << "):\n\n";
  if (table) PrintStateTablePart(os, table, found.outputs, full);
  if (found.group) {
    if (!found.outputs.empty()) {
      cell->PrintStateTable(found.outputs, found.second_outputs, os, full, false);
    } else if (!found.second_outputs.empty()) {
      // The ports came in through the group's second output.
      std::swap(found.outputs, found.second_outputs);
      cell->PrintStateTable(found.outputs, found.second_outputs, os, full, true);
    }
  }
  os << "END_CELL " << cell->Name() << "\n\n";
}
