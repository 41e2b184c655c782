// The lesser forms of report_lib: noise, em, noise arcs, power and timing
// labels, user-defined data, pg pins, characterisation and k-factors.
#include <iomanip>

#include "library/ReportLibSections.h"

namespace {

const char* const kLabelRule =
    "   ----------------------------------------------------------------------------\n";

void PrintOneCellNoiseInfo(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell) {
  os << "\nCELL(" << cell->Name() << "): " << cell->GetArea() << ";\n";
  std::unique_ptr<cdm::Iterator<cdm::LibPort>> ports(cell->LibPortIter());
  while (ports->HasNext()) {
    cdm::LibPort* port = ports->Next();
    if (PrintOnePinHead(os, lib, port)) PrintOnePinCap(os, lib, port);
  }
  os << "END_CELL " << cell->Name() << ";\n\n";
}

// No electromigration data is read: the em form shows what noise shows.
void PrintOneCellEmInfo(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell) {
  PrintOneCellNoiseInfo(os, lib, cell);
}

void PrintOneCellNoiseArcsInfo(std::ostream& os, cdm::LibertyLib* /*lib*/, cdm::LibCell* cell) {
  os << "   " << std::left << std::setw(37) << cell->Name() << std::left << std::setw(12)
     << GetCellAttibutes(cell) << "\n";
}

// One row per attribute of the given kind; an attribute without a related
// pin shows the pin's own name.
template <class Attrs>
void PrintLabelRows(std::ostream& os, cdm::LibCell* cell, Attrs attrs_of) {
  if (cell->GetInternalPowers().empty()) return;
  bool first = true;
  std::unique_ptr<cdm::Iterator<cdm::LibPort>> ports(cell->LibPortIter());
  while (ports->HasNext()) {
    cdm::LibPort* port = ports->Next();
    for (const auto& attr : attrs_of(port)) {
      std::string related = attr->GetRelatedPinsStr();
      if (related == "undefined") related = port->Name();
      if (first) {
        os << "   " << std::left << std::setw(7) << cell->Name() << "  ";
      } else {
        os << std::string(12, ' ');
      }
      os << std::left << std::setw(12) << related << port->Name() << "\n";
      first = false;
    }
  }
}

void PrintOneCellPowerLabel(std::ostream& os, cdm::LibertyLib* /*lib*/, cdm::LibCell* cell) {
  PrintLabelRows(os, cell, [](cdm::LibPort* port) { return port->GetPowerAttrs(); });
}

// Gated on internal power as the power labels are.
void PrintOneCellTimingLabel(std::ostream& os, cdm::LibertyLib* /*lib*/, cdm::LibCell* cell) {
  PrintLabelRows(os, cell, [](cdm::LibPort* port) { return port->GetTimingAttrs(); });
}

void PrintOneCellUserDefinedData(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell) {
  os << "\n      CELL(" << cell->Name() << "):\n\n";
  const auto attrs = lib->GetUserDefinedAttrs();
  for (const auto& entry : attrs) {
    if (entry.first == "drive_strength") {
      os << "         drive_strength : " << cell->GetDriveStrength() << "\n";
    }
  }
  os << "\n      END_CELL " << cell->Name() << ";\n";
}

void PrintPinPgPinInfo(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell) {
  std::unique_ptr<cdm::Iterator<cdm::LibPort>> ports(cell->LibPortIter());
  while (ports->HasNext()) {
    cdm::LibPort* port = ports->Next();
    if (!PrintOnePinHead(os, lib, port)) continue;
    os << "    RELATED_POWER_PIN : " << port->GetRelatedPowerPin() << "\n"
       << "    RELATED_GROUND_PIN : " << port->GetRelatedGroundPin() << "\n"
       << "  END_PIN " << port->Name() << ";\n";
  }
}

void PrintOneCellPgPinInfo(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell) {
  os << "\nCell(" << cell->Name() << "): " << cell->GetArea() << "\n";
  for (const auto& leakage : cell->GetLeakagePowers()) {
    os << "  LEAKAGE_POWER :\n"
       << "         WHEN  : " << leakage->GetWhen()->GetFuncStr() << "\n";
  }
  std::unique_ptr<cdm::Iterator<cdm::LibPgPort>> pg_ports(cell->LibPgPortIter());
  while (pg_ports->HasNext()) {
    const cdm::LibPgPort* pg = pg_ports->Next();
    os << "  PG_PIN(" << pg->Name() << ")\n"
       << "    VOLTAGE_NAME: " << pg->voltage_name << "\n"
       << "    PG_TYPE: " << cdm::to_string(pg->type) << "\n"
       << "  END_PG_PIN " << pg->Name() << "\n\n";
  }
  PrintPinPgPinInfo(os, lib, cell);
  os << "END_CELL " << cell->Name() << ";\n";
}

void PrintOneCellCharInfo(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell) {
  os << "\nCell(" << cell->Name() << "): " << cell->GetArea() << "\n";
  std::unique_ptr<cdm::Iterator<cdm::LibPort>> ports(cell->LibPortIter());
  while (ports->HasNext()) {
    cdm::LibPort* port = ports->Next();
    if (!PrintOnePinHead(os, lib, port)) continue;
    for (const auto& attr : port->GetTimingAttrs()) PrintTimingGroupHead(os, lib, port, attr);
    os << "  END_PIN " << port->Name() << ";\n";
  }
  os << "END_CELL " << cell->Name() << ";\n";
}

void PrintOneCellScalingAttrInfo(std::ostream& os, cdm::LibertyLib* /*lib*/, cdm::LibCell* cell) {
  os << "Cell(" << cell->Name() << "): \n";
  if (const cdm::LibScaleFactor* factor = cell->GetScalingFactor()) {
    if (!factor->name.empty()) os << "    Scaling Group(" << factor->name << "):\n";
    factor->DumpSelfForReport(os, 8);
  }
  os << "END_CELL " << cell->Name() << ";\n";
}

}  // namespace

void PrintNoiseInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  os << "Time Unit               :" << lib->GetUnits().time.libval() << "\n";
  WalkLibCells(lib, names,
               [&os, lib](cdm::LibCell* cell) { PrintOneCellNoiseInfo(os, lib, cell); });
}

void PrintEmInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  os << "Time Unit               :" << lib->GetUnits().time.libval() << "\n";
  WalkLibCells(lib, names, [&os, lib](cdm::LibCell* cell) { PrintOneCellEmInfo(os, lib, cell); });
}

void PrintNoiseArcsInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  os << "                            Arc                   Arc Pins\n"
     << "   Cell      Attributes    #  Type            From        To         When         Mode\n"
     << "   ----------------------------------------------------------------------------------"
        "------\n";
  WalkLibCells(lib, names,
               [&os, lib](cdm::LibCell* cell) { PrintOneCellNoiseArcsInfo(os, lib, cell); });
}

void PrintPowerLabel(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  os << "                Arc Pins\n"
     << "   Cell      From      To              Power Labels\n"
     << kLabelRule;
  WalkLibCells(lib, names,
               [&os, lib](cdm::LibCell* cell) { PrintOneCellPowerLabel(os, lib, cell); });
  os << "\n";
}

void PrintTimingLabel(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  os << "                Arc Pins\n"
     << "   Cell      From      To              Arc Labels\n"
     << kLabelRule;
  WalkLibCells(lib, names,
               [&os, lib](cdm::LibCell* cell) { PrintOneCellTimingLabel(os, lib, cell); });
  os << "\n";
}

void PrintUserDefinedData(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  os << "\nUser-defined Data:\n\n" << kLabelRule << "   LIBRARY(" << lib->Name() << ") :\n";
  WalkLibCells(lib, names,
               [&os, lib](cdm::LibCell* cell) { PrintOneCellUserDefinedData(os, lib, cell); });
  os << "   END_LIBRARY" << lib->Name() << ";\n";
}

void PrintCellPgPinInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  WalkLibCells(lib, names,
               [&os, lib](cdm::LibCell* cell) { PrintOneCellPgPinInfo(os, lib, cell); });
}

void PrintCellCharInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  WalkLibCells(lib, names, [&os, lib](cdm::LibCell* cell) { PrintOneCellCharInfo(os, lib, cell); });
}

void PrintScalingAttrInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  os << "\nK_FACTORS:\n";
  if (!names.empty()) {
    WalkLibCells(lib, names,
                 [&os, lib](cdm::LibCell* cell) { PrintOneCellScalingAttrInfo(os, lib, cell); });
    return;
  }
  if (const cdm::LibScaleFactor* defaults = lib->GetDefaultScaleFactorAttrs()) {
    defaults->DumpSelfForReport(os, 0);
  }
  const auto groups = lib->GetScaleFactors();
  for (const auto& entry : groups) {
    if (!entry.second->name.empty()) os << "Scaling Group(" << entry.first << "):\n";
    entry.second->DumpSelfForReport(os, 4);
  }
}
