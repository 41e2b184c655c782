// Sections of report_lib. Every section appends to one stream whose numeric
// format (notation, precision, adjustment) carries over from section to
// section, so the order in which they run decides how numbers look.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "hostapi/cdm/Iterator.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibertyLib.h"

namespace cdm {
class LibPort;
class LibTimingAttr;
class LibTimingArcSet;
class OperatingConditions;
}  // namespace cdm

using CellNames = std::vector<std::string>;

// Library summary.
void PrintBasicInfo(std::ostream& os, cdm::LibertyLib* lib);
void PrintOperatingCondition(std::ostream& os, cdm::LibertyLib* lib,
                             const cdm::OperatingConditions* cond);
void PrintOperatingConditions(std::ostream& os, cdm::LibertyLib* lib);
void PrintDelayModel(std::ostream& os, cdm::LibertyLib* lib);
void PrintPowerModel(std::ostream& os, cdm::LibertyLib* lib);
void PrintUserDefinedAttrTemplate(std::ostream& os, cdm::LibertyLib* lib);
void PrintVoltageInfo(std::ostream& os, cdm::LibertyLib* lib);
std::string GetDoubleAttrString(double value, double scale, std::string default_text);

// Missing cell names are passed over without a word; this is the one place
// where a complaint about them would go.
void MsgErrorNonExistCell(const CellNames& missing, cdm::LibertyLib* lib);

// Visits the named cells in list order, or every cell when the list is
// empty; returns the number of cells visited.
template <class Visit>
int WalkLibCells(cdm::LibertyLib* lib, const CellNames& names, Visit visit) {
  int visited = 0;
  CellNames missing;
  if (names.empty()) {
    std::unique_ptr<cdm::Iterator<cdm::LibCell>> iter(lib->LibCellIter());
    while (iter->HasNext()) {
      visit(iter->Next());
      ++visited;
    }
  } else {
    for (const std::string& given : names) {
      std::string name(given.c_str());  // a name stops at an embedded NUL
      cdm::LibCell* cell = lib->GetLibCell(name);
      if (cell) {
        visit(cell);
        ++visited;
      } else {
        missing.push_back(name);
      }
    }
  }
  MsgErrorNonExistCell(missing, lib);
  return visited;
}

// Legends and one-line-per-cell tables.
void PrintCellAndArcTypeAttrList(std::ostream& os);
void PrintCellPinAttrList(std::ostream& os);
void PrintCellAttrInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names);
std::string GetCellAttibutes(const cdm::LibCell* cell);
std::string GetArcTypeSense(const cdm::LibTimingArcSet* arc);
void PrintCellAttrTimingArcInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names);
void PrintOneCellAttrTimingArcInfo(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell);
void PrintCellAttrPowerInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names);
void PrintOneCellAttrPowerInfo(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell);

// Cell blocks of the all, timing and power forms.
int PrintCellInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names);
int PrintCellTimingInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names);
int PrintCellPowerInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names);
bool PrintOnePinHead(std::ostream& os, cdm::LibertyLib* lib, cdm::LibPort* port);
void PrintOnePinCap(std::ostream& os, cdm::LibertyLib* lib, cdm::LibPort* port);
void PrintTimingGroupHead(std::ostream& os, cdm::LibertyLib* lib, cdm::LibPort* port,
                          const std::shared_ptr<cdm::LibTimingAttr>& attr);

// State tables.
void PrintCellStateTable(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names, bool full);
void PrintOneCellStateTable(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell, bool full);
// The next-state column of one internal pin, packed or one line per row.
// False when the row index passed the last row of the table: a line says
// so, and the cell's table ends there.
bool PrintInternalPinTable(std::ostream& os, const cdm::LibStateTable* table, size_t pin,
                           bool full);

// Side tables.
void PrintNoiseInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names);
void PrintEmInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names);
void PrintNoiseArcsInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names);
void PrintPowerLabel(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names);
void PrintTimingLabel(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names);
void PrintUserDefinedData(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names);
void PrintCellPgPinInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names);
void PrintCellCharInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names);
void PrintScalingAttrInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names);
