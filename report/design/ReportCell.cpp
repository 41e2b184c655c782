// report_cell: a summary line per cell, or with -connections the pins of
// each cell with their nets and, with -verbose, the pins at the far end.
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "cmd/TclCmd.h"
#include "design/DesignArea.h"
#include "format/ReportMgr.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/DesignIterators.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cmd/Interrupt.h"
#include "hostapi/msg/Msg.h"

float ComputeInstanceArea(cdm::Cell* cell) {
  if (cdm::LibCell* lib_cell = cell->GetRefLibCell()) return lib_cell->GetArea();
  cdm::Design* design = cell->GetRefDesign();
  if (!design) return 0.0f;
  float area = 0.0f;
  std::unique_ptr<cdm::Iterator<cdm::Cell>> cells(design->CellIter());
  while (cells->HasNext()) {
    cdm::Cell* child = cells->Next();
    if (child->IsConstCell()) continue;
    if (cdm::LibCell* lib_cell = child->GetRefLibCell())
      area += lib_cell->GetArea();
    else
      area += ComputeInstanceArea(child);
  }
  return area;
}

namespace {

// A column grows to the text and 4 blanks when the text does not fit.
void Widen(int& width, const std::string& text) {
  if (width < static_cast<int>(text.size())) width = static_cast<int>(text.size()) + 4;
}

// One printf-style line of left-aligned fields, four blanks in.
std::string FormatLine(const std::vector<int>& widths, const std::vector<std::string>& texts) {
  std::string line = "    ";
  for (size_t i = 0; i < texts.size(); ++i) {
    line += texts[i];
    if (static_cast<int>(texts[i].size()) < widths[i])
      line.append(widths[i] - texts[i].size(), ' ');
  }
  return line + "\n";
}

struct PinRow {
  std::string pin;
  std::string net;
  std::vector<std::string> peers;
  std::vector<std::string> types;
};

PinRow GatherPinRow(const cdm::Pin* pin, bool output, std::vector<int>& widths) {
  PinRow row;
  row.pin = pin->GetFullName();
  Widen(widths[0], row.pin);
  row.net = pin->GetNet() ? pin->GetNet()->GetFullName() : " ";
  Widen(widths[1], row.net);
  std::vector<const cdm::Pin*> peers;
  if (output)
    pin->GetFanoutPins(peers, cdm::kHierFlat);
  else
    pin->GetFaninPins(peers, cdm::kHierFlat);
  if (peers.empty()) {
    int value = pin->GetConstValue();
    if (value == 0) {
      row.peers.push_back("*LOGIC_0*           ");
      row.types.push_back("Logic Zero");
    } else if (value == 1) {
      row.peers.push_back("*LOGIC_1*            ");
      row.types.push_back("Logic One");
    } else {
      row.peers.push_back("UNKNOW               ");
      row.types.push_back("UNKNOW");
    }
    return row;
  }
  for (const cdm::Pin* peer : peers) {
    row.peers.push_back(peer->GetFullName());
    Widen(widths[2], row.peers.back());
    if (peer->IsTopPortPin()) {
      row.types.push_back(output ? "Output Port" : "Input Port");
      int least = output ? 11 : 10;
      if (widths[3] < least) widths[3] = least + 4;
    } else {
      const cdm::Cell* cell = peer->GetCell();
      std::string ref = cell && cell->GetRef() ? cell->GetRef()->GetRefText() : "";
      row.types.push_back((output ? "Input Pin (" : "Output Pin (") + ref + ")");
      Widen(widths[3], row.types.back());
    }
  }
  return row;
}

void PrintConnections(cdm::Cell* cell, bool verbose, std::ostringstream& out) {
  std::vector<const cdm::Pin*> inputs;
  std::vector<const cdm::Pin*> outputs;
  std::unique_ptr<cdm::Iterator<cdm::Pin>> pins(cell->PinIter());
  while (pins->HasNext()) {
    const cdm::Pin* pin = pins->Next();
    bool is_output = pin->GetPort() && pin->GetPort()->GetDirection() == cdm::kDirOutput;
    (is_output ? outputs : inputs).push_back(pin);
  }
  cdm::Reference* ref = cell->GetRef();
  out << "Connections for cell '" << cell->GetFullName() << "':\n";
  out << "    Reference:          " << (ref ? ref->GetRefText() : cell->GetRefName()) << "\n";
  if (!cell->GetRefLibCell())
    out << "    Hierarchical:       TRUE\n";
  else
    out << "    Library:            " << cell->GetRefLibCell()->GetLibertyLib()->Name() << "\n";

  std::vector<int> widths = {14, 7, 18, 18};
  std::vector<PinRow> input_rows;
  std::vector<PinRow> output_rows;
  for (const cdm::Pin* pin : inputs) input_rows.push_back(GatherPinRow(pin, false, widths));
  for (const cdm::Pin* pin : outputs) output_rows.push_back(GatherPinRow(pin, true, widths));

  const std::string dashes = "----------------";
  if (!verbose) {
    out << "\n"
        << FormatLine(widths, {"Input Pins", "Net"}) << FormatLine(widths, {dashes, dashes});
    for (const PinRow& row : input_rows) out << FormatLine(widths, {row.pin, row.net});
    out << "\n"
        << FormatLine(widths, {"Output Pins", "Net"}) << FormatLine(widths, {dashes, dashes});
    for (const PinRow& row : output_rows) out << FormatLine(widths, {row.pin, row.net});
    out << "\n";
    return;
  }
  out << "    Area:               " << static_cast<double>(ComputeInstanceArea(cell)) << "\n";
  out << "    dont_touch:         UNKNOW\n\n";
  auto print_side = [&](const std::vector<PinRow>& rows) {
    for (const PinRow& row : rows) {
      for (size_t i = 0; i < row.peers.size(); ++i) {
        out << FormatLine(
            widths, {i == 0 ? row.pin : " ", i == 0 ? row.net : " ", row.peers[i], row.types[i]});
      }
    }
    out << "\n";
  };
  out << FormatLine(widths, {"Input Pins", "Net", "Net Driver Pins", "Driver Pin Type"})
      << FormatLine(widths, {dashes, dashes, dashes, dashes});
  print_side(input_rows);
  out << FormatLine(widths, {"Output Pins", "Net", "Net Load Pins", "Load Pin Type"})
      << FormatLine(widths, {dashes, dashes, dashes, dashes});
  print_side(output_rows);
}

void PrintResultAndEmpty(std::ostringstream& out) {
  msg::Print_Result("%s", out.str().c_str());
  out.str("");
}

}  // namespace

int ReportCellCmd::exec() {
  if (!PreReport()) return 1;
  bool connections = getConnections();
  bool verbose = getVerbose();
  bool physical = getPhysical();
  bool only_physical = getOnlyPhysical();
  if (verbose && !connections && !physical) return 1;
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();

  std::vector<std::string> names = getCellList();
  std::vector<cdm::Cell*> cells;
  if (!names.empty()) {
    for (const std::string& name : names) {
      if (cdm::Cell* cell = cdm::DbManager::FindCell(name)) cells.push_back(cell);
    }
  } else {
    cdm::DesignCellIterator all(design, true, [](const cdm::Cell*) { return true; });
    while (all.HasNext()) cells.push_back(all.Next());
  }
  if (cells.empty()) return 1;

  std::ostringstream out;
  out << "****************************************\n";
  out << "Report : cell\n";
  if (getNosplit()) out << "         -nosplit\n";
  if (connections) out << "         -connections\n";
  if (verbose) out << "         -verbose\n";
  if (physical) out << "         -physical\n";
  if (only_physical) out << "         -only_physical\n";
  if (std::optional<int> digits = getSignificantDigitsOptional())
    out << "         -significant_digits " << *digits << "\n";
  out << "Design : " << design->Name() << "\n";
  out << "Version: \n";
  out << "Date   : \n";
  out << "****************************************\n";
  if (names.empty()) {
    out << "\nAttributes:\n"
        << "             b - black box (unknown)\n"
        << "             bo - allows boundary optimization\n"
        << "             BO - reference allows boundary optimization\n"
        << "             c - control logic\n"
        << "             d - dont_touch\n"
        << "             D - reference or design is dont_touched\n"
        << "             h - hierarchical\n"
        << "             n - noncombinational\n"
        << "             p - parameterized\n"
        << "             r - removable\n"
        << "             S - synthetic module\n"
        << "             u - contains unmapped logic\n";
  }
  out << "\n";
  PrintResultAndEmpty(out);

  bool listing = connections || physical || only_physical;
  std::vector<int> widths(5, 0);
  std::vector<std::vector<std::string>> rows;
  for (cdm::Cell* cell : cells) {
    if (common::InterruptRequested()) return 1;  // Ctrl-C: stop between cells
    if (listing) {
      PrintConnections(cell, verbose, out);
      PrintResultAndEmpty(out);
      continue;
    }
    cdm::Reference* ref = cell->GetRef();
    cdm::LibCell* lib_cell = cell->GetRefLibCell();
    bool hierarchical = cell->GetRefDesign() != nullptr;
    std::vector<std::string> row = {
        cell->GetFullName(), ref ? ref->GetRefText() : cell->GetRefName(),
        hierarchical ? "    " : (lib_cell ? lib_cell->GetLibertyLib()->Name() : ""),
        AreaText(ComputeInstanceArea(cell)),
        hierarchical ? "h " : (lib_cell && lib_cell->IsSequentialCell() ? "n " : "")};
    for (size_t i = 0; i < row.size(); ++i) Widen(widths[i], row[i]);
    rows.push_back(std::move(row));
  }
  if (!rows.empty()) {
    out << FormatLine(widths, {"Cell", "Reference", "Library", "Area", "Attributes"}) << "\n\n";
    PrintResultAndEmpty(out);
    for (const auto& row : rows) {
      std::string line = FormatLine(widths, row);
      msg::Print_Result("%s", line.c_str());
    }
  }
  return 0;
}
